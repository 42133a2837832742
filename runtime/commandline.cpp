// SPDX-License-Identifier: MIT
#include "runtime/commandline.h"

#include <SFML/Window/WindowStyle.hpp>
#include <iostream>
#include <sstream>

unsigned long video_fullscreen = sf::Style::Fullscreen;
bool vsync = true;
int resolution_x = 1024;
int resolution_y = 768;
bool width_given = false;
int fps_limit_value = 60;
unsigned int video_depth = 24;
unsigned int video_stencil = 2;
unsigned int video_fsaa_level = 4;
bool music_enabled = true;
bool fps_counter = false;
bool mushroom_mode = false;

namespace {

constexpr char const* help_text = R"(
Command line parameters:
    -width X    Resolution width (4:3)
    -w          Windowed mode
    -novsync    Disable vertical sync (enabled by default)
    -fps        Show frame rate
    -limit N    Limit frame rate to N frames per second
    -nolimit    Disable fps limit (60)
    -mute       Disable music playback

)";

void set_width(std::string const& value) {
    width_given = true;
    resolution_x = my_atoi(value);
    resolution_y = static_cast<int>(static_cast<double>(resolution_x) / 1.3333333333333333);
    std::cout << "Using resolution " << resolution_x << "x" << resolution_y << std::endl;
}

struct Option {
    char const* name;
    bool takes_value;
    void (*set)(std::string const& value);
};

// In the order of checking.
// clang-format off
constexpr Option options[] = {
    // name      value? what it sets
    {"-w",       false, [](std::string const&) { video_fullscreen = sf::Style::Close; }},
    {"-novsync", false, [](std::string const&) { vsync = false; }},
    {"-fps",     false, [](std::string const&) { fps_counter = true; }},
    {"-nolimit", false, [](std::string const&) { fps_limit_value = 0; }},
    {"-magic",   false, [](std::string const&) { mushroom_mode = true; }},                   // not in the help
    {"-mute",    false, [](std::string const&) { music_enabled = false; }},
    {"-nofsaa",  false, [](std::string const&) { video_fsaa_level = 0; }},                   // not in the help
    {"-limit",   true,  [](std::string const& value) { fps_limit_value = my_atoi(value); }},
    {"-width",   true,  set_width},
};
// clang-format on

Option const* find_option(std::string const& name) {
    for (Option const& option : options) {
        if (name == option.name) return &option;
    }
    return nullptr;
}

} // namespace

int my_atoi(std::string const& s) {
    std::istringstream stream(s);
    int value = 0;
    stream >> value;
    return value;
}

std::optional<int> read_command_line(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        std::string const argument = argv[i];
        if (argument == "-h" || argument == "--help") {
            std::cout << window_title << '\n' << help_text << std::flush;
            if (std::cout) return 0;
            std::cerr << "Cannot write to standard output." << std::endl;
            return 1;
        }
        Option const* const option = find_option(argument);
        if (!option) {
            std::cout << "Bad command line parameter '" << argument << "'" << std::endl;
            return 1;
        }
        if (option->takes_value && i + 1 == argc) {
            std::cout << argument << " requires a value" << std::endl;
            return 1;
        }
        option->set(option->takes_value ? argv[++i] : "");
    }
    return std::nullopt;
}
