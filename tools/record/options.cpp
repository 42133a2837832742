// SPDX-License-Identifier: MIT
#include "tools/record/options.h"

#include "tools/arguments/arguments.h"
#include "tools/files/png.h"
#include "tools/files/streams.h"
#include "tools/record/filmformat.h"

#include <algorithm>

namespace {

constexpr unsigned int largest_side = 16384; // pixels; more than drivers can
constexpr unsigned int most_samples = 64;
constexpr unsigned int most_supersample = 16;
constexpr unsigned int most_columns = 100;

bool read_beats(std::string const& value, std::vector<Millibeats>& beats) {
    auto found = parse_beats(value);
    if (found) beats = std::move(*found);
    return found.has_value();
}

bool read_size(std::string const& value, RecordOptions& options) {
    auto const x = std::min(value.find('x'), value.size());
    return read_number(value.substr(0, x), 1u, largest_side, options.width) && x < value.size() &&
           read_number(value.substr(x + 1), 1u, largest_side, options.height);
}

bool is_svg_name(std::string const& path) { return path.ends_with(".svg"); }

bool read_text(std::string const& value, std::string& text) {
    text = value;
    return !value.empty();
}

using Value = std::string const&;

// clang-format off

/// Of pictures and films.
void add_drawing_options(CLI::App& app, RecordOptions& options) {
    add_value(app, "--scene", "NAME", [&](Value v) { return read_text(v, options.scene); },
              "a scene's name; --list shows them", "Count beats from the start of this scene; a film is of it alone");
    add_value(app, "--size", "WxH", [&](Value v) { return read_size(v, options); },
              "a size such as 1024x768, up to 16384x16384",
              "Size in pixels (1024x768; of films 1920x1080, of .gif and .webp 512x384)");
    app.add_flag_callback("--stretch", [&] { options.stretch = true; }, "Fill sizes that are not 4:3")
        ->trigger_on_parse();
    app.add_flag_callback("--letterbox", [&] { options.stretch = false; }, "Leave black beside the show (default)")
        ->trigger_on_parse();
    add_value(app, "--samples", "N", [&](Value v) { return read_number(v, 0u, most_samples, options.samples); },
              "a number from 0 to 64", "Samples per pixel (4)");
    add_value(app, "--supersample", "N",
              [&](Value v) { return read_number(v, 1u, most_supersample, options.supersample); },
              "a number from 1 to 16", "Draw so many times as wide and high, and average (1)");
    app.add_flag("--calm", options.calm, "The calm mode: held cuts instead of strobes");
    app.add_flag_callback("--wire", [&] { options.wire = true; },
                          "Draw the pulse wire by the OpenGL standard, on every driver (default)")
        ->trigger_on_parse();
    app.add_flag_callback("--no-wire", [&] { options.wire = false; }, "Leave it to the driver, as the program does")
        ->trigger_on_parse();
    app.add_flag("--list", options.list, "List the scenes, their first beats and lengths");
}

void add_picture_options(CLI::App& app, RecordOptions& options) {
    app.option_defaults()->group("Pictures");
    add_value(app, "--beats", "LIST", [&](Value v) { return read_beats(v, options.beats); },
              "a list of beats such as 0.5,3.25 or 0:16:0.5, to thousandths",
              "Beats of the show: 0.5,3.25 or 0:16:0.5 (from, to, step; the end is left out)");
    app.add_flag("--overview", options.overview, "Five moments of every scene, instead of --beats");
    app.add_flag("--frame-after", options.frame_after,
                 "Also take the frame after each, ending in \"b\": strobes last one frame");
    add_value(app, "--out", "DIR", [&](Value v) { return read_text(v, options.folder); }, "a path",
              "Write each picture to DIR/beat_012.400.png, of a scene NAME_012.400.png");
    add_value(app, "--sheet", "FILE", [&](Value v) { return read_text(v, options.sheet) && is_png_name(v); },
              "a path that ends in .png", "Write a contact sheet of the pictures");
    add_value(app, "--timeline", "FILE", [&](Value v) { return read_text(v, options.timeline) && is_svg_name(v); },
              "a path that ends in .svg", "Draw what happens when: scenes, cues, events and the sound");
    add_value(app, "--columns", "N", [&](Value v) { return read_number(v, 1u, most_columns, options.columns); },
              "a number from 1 to 100", "Pictures per row of the sheet (5)");
}

// clang-format on

std::string picture_fault(RecordOptions const& options) {
    if (options.beats.empty() && !options.overview) return "no beats to record, see --beats; nor a film, see --film";
    if (!options.beats.empty() && options.overview) return "either --beats or --overview";
    if (!options.scene.empty() && options.overview) return "either --scene or --overview";
    if (options.folder.empty() && options.sheet.empty()) return "nowhere to write to, see --out and --sheet";
    return "";
}

std::string film_fault(RecordOptions const& options, FilmFormat const* format) {
    bool const pictures = !options.beats.empty() || options.overview || options.frame_after;
    if (pictures || !options.folder.empty() || !options.sheet.empty()) return "either pictures or a film";
    FilmOptions const& film = options.film;
    if (!film.file.empty() && !format && film.encoder.empty()) {
        return "cannot tell by its name what " + film.file + " should be; known are " + format_list();
    }
    bool const odd = options.width % 2 != 0 || options.height % 2 != 0;
    if (format && format->even && film.encoder.empty() && odd) {
        return std::string(format->ending) + " takes an even width and height";
    }
    return film_conflict(film, !options.scene.empty());
}

std::string timeline_fault(RecordOptions const& options) {
    bool const pictures =
        !options.beats.empty() || options.overview || !options.folder.empty() || !options.sheet.empty();
    return pictures || options.film.Wanted() ? "either a timeline or pictures and films" : "";
}

/// Fills in what was left open.
void complete(RecordOptions& options, FilmFormat const* format) {
    bool const film = options.film.Wanted();
    if (options.width == 0) {
        options.width = format ? format->width : film ? 1920 : 1024;
        options.height = format ? format->height : film ? 1080 : 768;
    }
    if (!options.film.rate) options.film.rate = FrameRate{format ? format->rate : recorded_rate, 1};
}

} // namespace

int complain(std::string const& message) { return complain(recorder_name, message); }

std::optional<int> read_command_line(int argc, char const* const* argv, RecordOptions& options) {
    CLI::App app("Makes films of Hard Silence, and pictures of it, drawn off-screen.", recorder_name);
    app.footer(
        "A film of the whole show lasts as long as the music. Pictures are taken at 60 frames a second; a beat's\n"
        "picture is the first frame at or after it on which the show has counted the beat.");
    set_up(app);
    add_drawing_options(app, options);
    add_picture_options(app, options);
    add_film_options(app, options.film);
    if (auto const status = read_arguments(app, argc, argv)) return status;
    FilmFormat const* const format = find_format(options.film.file);
    complete(options, format);
    if (options.list) return std::nullopt;
    if (!options.timeline.empty()) {
        std::string const fault = timeline_fault(options);
        return fault.empty() ? std::nullopt : std::optional(complain(fault));
    }
    std::string const fault = options.film.Wanted() ? film_fault(options, format) : picture_fault(options);
    return fault.empty() ? std::nullopt : std::optional(complain(fault));
}
