// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/area.h"
#include "tests/support/process.h"
#include "tests/support/temp.h"

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

    /// A server that can be switched between video modes, as graphics cards can.
    struct Switched {
        std::string mode; ///< that the desktop has, for example "1280x720"; larger ones are offered too
    };
    explicit XScreen(Switched const& start);

    /// Xwayland under a Wayland compositor without a screen.
    struct Wayland {
        int width; ///< pixels
        int height;
    };
    explicit XScreen(Wayland const& desktop);
    XScreen(XScreen const&) = delete;
    XScreen& operator=(XScreen const&) = delete;

    /// As DISPLAY takes it.
    std::string const& Name() const { return name; }

    /// Starts a window manager, and waits until it is there.
    void Manage();

    /// Runs an xrandr command and waits for its end.
    void Randr(std::vector<std::string> const& arguments) const;

    /// Waits for the show's window, framed or not, and gives it the keyboard.
    /// @return false if there is none after ten seconds
    bool FindShow();

    /// Presses and releases a key as a person does, by xdotool, to whom the keyboard belongs.
    void Press(std::string const& key) const;
    void Down(std::string const& key) const;
    void Up(std::string const& key) const;

    /// Moves the pointer to a place in the window.
    void Point(int x, int y) const;

    /// Turns the wheel up, or presses and releases a button of the mouse, in X's numbers.
    void Click(int button) const;
    void ButtonDown(int button) const;
    void ButtonUp(int button) const;

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

    /// All of the screen; under Wayland nothing, for no client sees others there.
    Picture LookAtAll() const;

    /// The window's place on the screen, without its frame.
    Area WindowPlace() const;

    /// Sets after how long without input the screen saver comes.
    void SetSaver(int seconds) const;

    /// Whether the screen saver has come.
    bool Saved() const;

    /// Whether the pointer is shown as one that can be seen.
    bool PointerIsSeen() const;

    /// Ends the server, as when the screen is lost.
    void Kill();

private:
    void Start(std::vector<std::string> const& command);
    void Connect();
    Picture Read(unsigned long drawable, int width, int height) const;

    support::TempFolder folder; ///< for what the server reads
    std::unique_ptr<Process> server;
    std::unique_ptr<Process> manager;
    std::string name;
    _XDisplay* display = nullptr;
    unsigned long window = 0;
};
