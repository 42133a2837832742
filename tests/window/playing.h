// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/process.h"
#include "tests/window/xscreen.h"

#include <algorithm>
#include <chrono>
#include <string>
#include <thread>
#include <vector>

/// The show as its audience has it: the program, playing on a screen of its own.
namespace window {

inline std::string const program = HARDSILENCE_BINARY_DIR "/hardsilence";

/// The show in a small window of an X server of its own.
class Show {
public:
    explicit Show(std::vector<std::string> options = {}, std::vector<std::string> environment = {},
                  std::vector<std::string> const& server_options = {})
        : screen(server_options), process(Command(std::move(options)), Environment(std::move(environment))) {
        open = screen.FindShow();
        std::this_thread::sleep_for(std::chrono::milliseconds(300)); // some frames
    }

    std::vector<std::string> static Command(std::vector<std::string> options) {
        options.insert(options.begin(), program);
        return options;
    }
    std::vector<std::string> Environment(std::vector<std::string> environment) const {
        environment.push_back("DISPLAY=" + screen.Name());
        return environment;
    }

    XScreen screen;
    Process process;
    bool open = false;
};

/// Options for a small window without a sound.
inline std::vector<std::string> small(std::vector<std::string> options = {}) {
    options.insert(options.begin(), {"-w", "-width", "320", "-nofsaa", "-mute"});
    return options;
}

/// Share of white pixels.
inline double whiteness(XScreen::Picture const& picture) {
    auto const white = std::count(picture.pixels.begin(), picture.pixels.end(), 0xffffffU);
    return static_cast<double>(white) / static_cast<double>(picture.pixels.size());
}

/// Whether the picture moves within half a second.
inline bool moves(XScreen const& screen) {
    auto const before = screen.Look();
    for (int i = 0; i < 10; ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        if (!(screen.Look() == before)) return true;
    }
    return false;
}

/// Waits until the picture stands for a second: strobes run on in frames, not in time, which takes a loaded machine
/// long.
/// @return false if it still moves after ten seconds
inline bool comes_to_rest(XScreen const& screen) {
    auto const until = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (moves(screen) || moves(screen)) {
        if (std::chrono::steady_clock::now() > until) return false;
    }
    return true;
}

} // namespace window
