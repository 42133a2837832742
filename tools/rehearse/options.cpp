// SPDX-License-Identifier: MIT
#include "tools/rehearse/options.h"

#include "tools/arguments/arguments.h"

#include <algorithm>

namespace {

constexpr unsigned int largest_side = 16384; // pixels
constexpr unsigned int most_samples = 64;

bool read_size(std::string const& value, RehearseOptions& options) {
    auto const x = std::min(value.find('x'), value.size());
    return read_number(value.substr(0, x), 1u, largest_side, options.width) && x < value.size() &&
           read_number(value.substr(x + 1), 1u, largest_side, options.height);
}

bool read_beat(std::string const& value, Millibeats& at) {
    auto const beat = parse_beat(value);
    if (beat) at = *beat;
    return beat.has_value();
}

bool read_folder(std::string const& value, std::string& folder) {
    folder = value;
    return !value.empty();
}

} // namespace

std::optional<int> read_command_line(int argc, char const* const* argv, RehearseOptions& options) {
    using Value = std::string const&;
    CLI::App app("Shows any beat of Hard Silence at once, for those who work on it.", rehearse_name);
    app.footer("A file of data/ that changes on disk is shown at the same beat. In the window, F1 shows the keys.");
    set_up(app);
    // clang-format off
    add_value(app, "--at", "BEAT", [&](Value v) { return read_beat(v, options.at); },
              "a number of beats such as 12.4", "Begin at this beat of the show");
    app.add_flag("--play", options.play, "Play at once");
    add_value(app, "--size", "WxH", [&](Value v) { return read_size(v, options); },
              "a size such as 1280x720, up to 16384x16384", "Size of the window in pixels (1280x720)");
    add_value(app, "--samples", "N", [&](Value v) { return read_number(v, 0u, most_samples, options.samples); },
              "a number from 0 to 64", "Samples per pixel (4)");
    app.add_flag("--calm", options.calm, "The calm mode: held cuts instead of strobes");
    app.add_flag_callback("--no-wire", [&] { options.wire = false; },
                          "Leave the pulse wire to the driver, as the program does");
    app.add_flag("--mute", options.mute, "Begin without sound");
    app.add_flag_callback("--no-panel", [&] { options.panel = false; }, "Begin with the picture alone");
    add_value(app, "--pictures", "DIR", [&](Value v) { return read_folder(v, options.pictures); }, "a path",
              "Save pictures there (the working folder)");
    add_value(app, "--content", "BUILD", [&](Value v) { return read_folder(v, options.content); }, "a path",
              "Render sources of content/ that change, by the targets of this build folder");
    app.add_flag("--tell", options.tell, "Print a line of state after every key, for scripts");
    // clang-format on
    return read_arguments(app, argc, argv);
}
