#pragma once

#include "tests/window/process.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

// Xlib's header defines words such as None as macros, so it stays in the unit.
struct _XDisplay; // NOLINT(*-reserved-identifier)

/// An X server of its own without a picture on any screen, and a client's view of it.
class XScreen {
public:
    /// @param options  further ones of the server
    explicit XScreen(std::vector<std::string> const& options = {}, std::string const& size = "800x600x24");
    ~XScreen();
    XScreen(XScreen const&) = delete;
    XScreen& operator=(XScreen const&) = delete;

    /// As DISPLAY takes it.
    std::string const& Name() const { return name; }

    /// Waits for the show's window and gives it the keyboard.
    /// @return false if there is none after ten seconds
    bool FindShow();

    /// Presses and releases a key as a person does, by xdotool, to whom the keyboard belongs.
    void Press(std::string const& key) const;
    void Down(std::string const& key) const;
    void Up(std::string const& key) const;

    /// Presses and releases keys in a hurry.
    /// @param strokes  "keydown", a key, "keyup", a key and so on, in xdotool's words
    void Hammer(std::vector<std::string> const& strokes) const;

    /// What the close button of a window manager sends.
    void AskToClose() const;
    void Resize(unsigned int width, unsigned int height) const;
    unsigned int WindowWidth() const;

    /// width x height pixels of the window, row by row, 0xRRGGBB.
    struct Picture {
        int width = 0;
        int height = 0;
        std::vector<std::uint32_t> pixels;
        bool operator==(Picture const&) const = default;
        std::uint32_t At(int x, int y) const {
            return pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x)];
        }
    };
    Picture Look() const;

    /// Ends the server, as when the screen is lost.
    void Kill();

private:
    std::unique_ptr<Process> server;
    std::string name;
    _XDisplay* display = nullptr;
    unsigned long window = 0;
};
