// SPDX-License-Identifier: MIT
// Any lines as the arguments of a command line.

#include "fuzz/check.h"
#include "runtime/commandline.h"

#include <SFML/Window/WindowStyle.hpp>
#include <cstdint>
#include <sstream>
#include <string>
#include <vector>

namespace {

constexpr int default_width = 1024;
constexpr int default_height = 768;
constexpr int default_limit = 60;
constexpr unsigned int default_samples = 4;

void reset_settings() {
    video_fullscreen = sf::Style::Fullscreen;
    vsync = music_enabled = true;
    resolution_x = default_width;
    resolution_y = default_height;
    fps_limit_value = default_limit;
    video_fsaa_level = default_samples;
    fps_counter = mushroom_mode = false;
}

void require_sound_settings(std::optional<int> status) {
    fuzz::require(!status || *status == 0 || *status == 1, "the status is unset, 0 or 1");
    fuzz::require(video_fullscreen == sf::Style::Fullscreen || video_fullscreen == sf::Style::Close,
                  "the window has one of two styles");
    fuzz::require(video_fsaa_level == 0 || video_fsaa_level == default_samples, "there are 4 samples or none");
    fuzz::require(video_depth == 24 && video_stencil == 2, "other settings stay");
    int const height = static_cast<int>(resolution_x / 1.3333333333333333);
    fuzz::require(resolution_y == height, "width and height are 4:3");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    fuzz::Quiet const quiet;
    std::vector<std::string> arguments{"hardsilence"};
    std::istringstream lines(std::string(data, data + size));
    for (std::string line; std::getline(lines, line);) arguments.push_back(line);
    std::vector<char*> argv;
    for (std::string& argument : arguments) argv.push_back(argument.data());
    int const argc = static_cast<int>(argv.size());
    argv.push_back(nullptr);

    reset_settings();
    require_sound_settings(read_command_line(argc, argv.data()));
    return 0;
}
