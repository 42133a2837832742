// SPDX-License-Identifier: MIT
#include "tools/record/filmoptions.h"

#include "tools/arguments/arguments.h"

#include <algorithm>

namespace {

constexpr int most_frames = 1000000;
constexpr unsigned int most_jobs = 64;

bool read_frame(std::string const& text, std::optional<int>& frame) {
    int number = 0;
    if (!read_number(text, 0, most_frames, number)) return false;
    frame = number;
    return true;
}

/// Reads a value that is there or not.
template<typename Value, typename Read>
bool take(std::string const& text, std::optional<Value>& value, Read read) {
    if (auto found = read(text))
        value = std::move(found);
    else
        return false;
    return true;
}

bool take_text(std::string const& text, std::string& value) {
    value = text;
    return !text.empty();
}

bool take_dash(std::string const& text, std::string& value) {
    value = text;
    return text == "-";
}

} // namespace

std::optional<FrameRange> parse_frames(std::string const& text) {
    auto const colon = text.find(':');
    if (colon == std::string::npos) return {};
    std::string const from = text.substr(0, colon);
    std::string const to = text.substr(colon + 1);
    FrameRange range;
    if (!from.empty() && !read_frame(from, range.from)) return {};
    if (!to.empty() && !read_frame(to, range.to)) return {};
    if (range == FrameRange{} || (range.to && *range.to <= range.from.value_or(0))) return {};
    return range;
}

void add_film_options(CLI::App& app, FilmOptions& options) {
    using Value = std::string const&;
    char const* const beat = "a number of beats such as 12.4";
    app.option_defaults()->group("Films");
    // clang-format off
    add_value(app, "--film", "FILE", [&](Value v) { return take_text(v, options.file); }, "a path",
              "Make a film with sound: .mp4 or .webm to show, .mkv lossless, .gif or .webp short and silent");
    add_value(app, "--raw", "-", [&](Value v) { return take_dash(v, options.raw); }, "-, for standard output",
              "Write the film's bare pixels to standard output: rows from above, 3 bytes a pixel, red first");
    add_value(app, "--y4m", "-", [&](Value v) { return take_dash(v, options.y4m); }, "-, for standard output",
              "Write it as a YUV4MPEG2 stream, 4:4:4");
    app.add_flag("--md5", options.digests, "Print the MD5 digest of each frame's bare pixels, as framemd5 does");
    app.add_flag("--plan", options.plan,
                 "With --film, make nothing: print its frames and what ffmpeg would be asked, for scripts such as "
                 "tools/farm");
    add_value(app, "--fps", "RATE", [&](Value v) { return take(v, options.rate, parse_rate); },
              "a rate from 24000/1001 to 240, such as 60 or 60000/1001",
              "Frames a second (60; of .gif and .webp 25). Strobes flicker per frame: slower at a lower rate");
    add_value(app, "--from", "BEAT", [&](Value v) { return take(v, options.from, parse_beat); }, beat,
              "Begin at this beat of the show, or of the scene");
    add_value(app, "--to", "BEAT", [&](Value v) { return take(v, options.to, parse_beat); }, beat,
              "End before this beat");
    add_value(app, "--frames", "A:B", [&](Value v) { return take(v, options.frames, parse_frames); },
              "a range of frames such as 100:200, 100: or :200",
              "The film's frames from A to before B, counted from 0; the sound is cut to the sample");
    add_value(app, "--encoder", "ARGS", [&](Value v) { return take_text(v, options.encoder); }, "a list of arguments",
              "Arguments for ffmpeg instead of the usual ones: \"-c:v libsvtav1 -crf 24 -c:a libopus\"");
    app.add_flag_callback("--no-sound", [&] { options.sound = false; }, "Make a silent film");
    add_value(app, "--jobs", "N", [&](Value v) { return read_number(v, 1u, most_jobs, options.jobs); },
              "a number from 1 to 64", "Draw in so many processes (as many as suit the machine)");
    // clang-format on
}

std::string film_conflict(FilmOptions const& options, bool scene) {
    int const streams = (options.raw.empty() ? 0 : 1) + (options.y4m.empty() ? 0 : 1) + (options.digests ? 1 : 0);
    if (streams > 1) return "only one of --raw, --y4m and --md5 fits on standard output";
    if (options.plan && (options.file.empty() || streams > 0)) return "--plan is for --film alone";
    if (options.frames && (scene || options.from || options.to)) {
        return "either --frames or --scene, --from and --to";
    }
    if (options.from && options.to && *options.from >= *options.to) return "--from lies at or after --to";
    if (!options.encoder.empty() && options.file.empty()) return "--encoder is for --film";
    return "";
}
