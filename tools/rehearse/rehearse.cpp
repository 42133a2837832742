// SPDX-License-Identifier: MIT
#include "tools/rehearse/rehearse.h"

#include "effekt/look.h"
#include "runtime/commandline.h"
#include "runtime/datafolder.h"
#include "runtime/deadline.h"
#include "runtime/display.h"
#include "runtime/frame.h"
#include "runtime/opening.h"
#include "runtime/stopsignal.h"
#include "show/datacheck.h"
#include "tools/files/streams.h"
#include "tools/rehearse/desk.h"

#include <SFML/System/Clock.hpp>
#include <algorithm>
#include <filesystem>
#include <unistd.h>

namespace {

constexpr unsigned int depth_bits = 24;
constexpr unsigned int stencil_bits = 2;
constexpr unsigned int frame_rate = 60;

int refuse(std::string const& why) { return complain(rehearse_name, why); }

/// @return whether the sound library hangs
bool run(RehearseOptions const& options, GoodData& data, sf::Window& window) {
    init_gl();
    Desk desk(options, window, data);
    sf::Clock clock;
    while (!desk.Over() && !stop_requested()) {
        sf::Event event;
        while (window.pollEvent(event)) desk.Handle(event);
        desk.Frame(static_cast<double>(clock.restart().asMicroseconds()) / 1e6);
    }
    return desk.SoundHangs();
}

int start(int argc, char** argv) {
    RehearseOptions options;
    if (auto const status = read_command_line(argc, argv, options)) return *status;
    std::error_code error;
    if (!options.content.empty()) options.content = std::filesystem::absolute(options.content, error).string();
    options.pictures = std::filesystem::absolute(options.pictures, error).lexically_normal().string();
    if (std::string const missing = enter_data_folder("", mesh_files().front().name); !missing.empty())
        return refuse(missing);
    GoodData data;
    if (data.Take() == GoodData::Result::Faulty) return refuse(data.Fault());
    if (!window_possible() || !opengl_possible()) return 1;
    catch_stop_signals();
    effect::look = {.standard_wire = options.wire, .calm = options.calm};
    sf::Window window(sf::VideoMode(options.width, options.height, display_depth()), window_title, sf::Style::Default,
                      sf::ContextSettings(depth_bits, stencil_bits, options.samples));
    deadline::clear();
    auto const desktop = sf::VideoMode::getDesktopMode();
    window.setPosition({std::max(0, static_cast<int>(desktop.width) - static_cast<int>(options.width)) / 2,
                        std::max(0, static_cast<int>(desktop.height) - static_cast<int>(options.height)) / 2});
    window.setFramerateLimit(frame_rate);
    if (!run(options, data, window)) return 0;
    _exit(0); // whoever waits for the sound waits long
}

} // namespace

int rehearse(int argc, char** argv) {
    return run_tool(rehearse_name, [=] { return start(argc, argv); });
}
