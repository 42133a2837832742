#include "tools/record/options.h"

#include <charconv>
#include <iostream>

namespace {

constexpr char const* help_text =
    R"(Takes pictures of Hard Silence: PNG files of its frames at given beats, drawn off-screen.

    --beats LIST     Beats of the show: 0.5,3.25 or 0:16:0.5 (from, to, step; the end is left out)
    --out DIR        Write each picture to DIR/beat_012.400.png (a folder that is not there is made)
    --sheet FILE     Write a contact sheet of the pictures
    --scene NAME     Count the beats from this scene's first one; the files are called NAME_012.400.png
    --frames         Also take the frame after each, ending in "b": strobes last one frame
    --size WxH       Size of a picture in pixels (1024x768)
    --samples N      Samples a pixel (4)
    --columns N      Pictures in a row of the sheet (5)
    --wire           Draw the pulse wire as the OpenGL standard has it, on every driver (default)
    --no-wire        Leave it to the driver, as the program does
    --list           List the scenes, their first beats and lengths
    -h, --help       Show this help

The show is stepped at 60 frames a second; a beat's picture is the first frame at or after it
on which the show has counted the beat.
)";

constexpr unsigned int largest_side = 8192; // pixels
constexpr unsigned int most_samples = 64;
constexpr unsigned int most_columns = 100;

bool read_number(std::string const& text, unsigned int most, unsigned int& number) {
    char const* const end = text.data() + text.size();
    auto const [rest, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && rest == end && number <= most;
}

// Each returns what the value should have been, or nothing.
using Fault = char const*;

Fault set_beats(RecordOptions& options, std::string const& value) {
    auto beats = parse_beats(value);
    if (!beats) return "a list of beats such as 0.5,3.25 or 0:16:0.5";
    options.beats = std::move(*beats);
    return nullptr;
}

Fault set_size(RecordOptions& options, std::string const& value) {
    auto const x = std::min(value.find('x'), value.size());
    bool const good = read_number(value.substr(0, x), largest_side, options.width) && x < value.size() &&
                      read_number(value.substr(x + 1), largest_side, options.height);
    return good && options.width > 0 && options.height > 0 ? nullptr : "a size such as 1024x768, up to 8192x8192";
}

Fault set_samples(RecordOptions& options, std::string const& value) {
    return read_number(value, most_samples, options.samples) ? nullptr : "a number from 0 to 64";
}

Fault set_columns(RecordOptions& options, std::string const& value) {
    bool const good = read_number(value, most_columns, options.columns) && options.columns > 0;
    return good ? nullptr : "a number from 1 to 100";
}

Fault set_path(std::string& path, std::string const& value) {
    path = value;
    return value.empty() ? "a path" : nullptr;
}

Fault set_scene(RecordOptions& options, std::string const& value) {
    options.scene = value;
    return value.empty() ? "a scene's name; --list shows them" : nullptr;
}

struct Option {
    char const* name;
    bool takes_value;
    Fault (*set)(RecordOptions& options, std::string const& value);
};

// Two templates, because clang-format 14 loses its way in a table whose entries have commas of their own.
template<auto Flag>
Fault switch_on(RecordOptions& options, std::string const&) {
    options.*Flag = true;
    return nullptr;
}

template<auto Flag>
Fault switch_off(RecordOptions& options, std::string const&) {
    options.*Flag = false;
    return nullptr;
}

template<auto Path>
Fault set_path_option(RecordOptions& options, std::string const& value) {
    return set_path(options.*Path, value);
}

// clang-format off
constexpr Option table[] = {
    // name        value? what it sets
    {"--beats",   true,  set_beats},
    {"--out",     true,  set_path_option<&RecordOptions::folder>},
    {"--sheet",   true,  set_path_option<&RecordOptions::sheet>},
    {"--scene",   true,  set_scene},
    {"--frames",  false, switch_on<&RecordOptions::frame_after>},
    {"--size",    true,  set_size},
    {"--samples", true,  set_samples},
    {"--columns", true,  set_columns},
    {"--wire",    false, switch_on<&RecordOptions::wire>},
    {"--no-wire", false, switch_off<&RecordOptions::wire>},
    {"--list",    false, switch_on<&RecordOptions::list>},
};
// clang-format on

Option const* find_option(std::string const& name) {
    for (Option const& option : table) {
        if (name == option.name) return &option;
    }
    return nullptr;
}

} // namespace

int complain(std::string const& message) {
    std::cerr << "hardsilence-record: " << message << std::endl;
    return 1;
}

std::optional<int> read_command_line(int argc, char const* const* argv, RecordOptions& options) {
    for (int i = 1; i < argc; ++i) {
        std::string const argument = argv[i];
        if (argument == "-h" || argument == "--help") {
            std::cout << help_text << std::flush;
            return 0;
        }
        Option const* const option = find_option(argument);
        if (!option) return complain("unknown option '" + argument + "', see --help");
        if (option->takes_value && i + 1 == argc) return complain(argument + " requires a value");
        std::string const value = option->takes_value ? argv[++i] : "";
        if (Fault const wanted = option->set(options, value)) {
            return complain(std::string(argument).append(": '").append(value).append("' is not ").append(wanted));
        }
    }
    if (options.list) return std::nullopt;
    if (options.beats.empty()) return complain("no beats to record, see --beats");
    if (options.folder.empty() && options.sheet.empty()) return complain("nowhere to write to, see --out and --sheet");
    return std::nullopt;
}
