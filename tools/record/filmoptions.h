// SPDX-License-Identifier: MIT
#pragma once

#include "tools/record/beats.h"
#include "tools/record/framerate.h"

#include <optional>
#include <string>

namespace CLI {
class App;
}

/// Frames of the film, counted from 0: from the first of them up to, but not including, the last number. Left out, a
/// bound is the film's own.
struct FrameRange {
    std::optional<int> from = {};
    std::optional<int> to = {};

    bool operator==(FrameRange const&) const = default;
};

/// Reads "100:200", "100:" or ":200".
/// @return nothing for anything else, and for an empty range
std::optional<FrameRange> parse_frames(std::string const& text);

/// What the recorder's options ask of a film.
struct FilmOptions {
    std::string file = {}; ///< the film; "" for none
    std::string raw = {};  ///< "-": bare pixels to standard output
    std::string y4m = {};  ///< "-": a YUV4MPEG2 stream to standard output
    bool digests = false;
    bool plan = false;                  ///< tell how the film would be made, instead of making it
    std::optional<FrameRate> rate = {}; ///< nothing for the format's own
    std::optional<FrameRange> frames = {};
    std::optional<Millibeats> from = {}; ///< of the show, or of the scene where one is asked for
    std::optional<Millibeats> to = {};
    std::string encoder = {}; ///< arguments for ffmpeg instead of the format's own
    bool sound = true;
    unsigned int jobs = 0; ///< processes that draw; 0 for as many as suit the machine

    /// Whether a film is wanted at all.
    bool Wanted() const { return !file.empty() || !raw.empty() || !y4m.empty() || digests; }
};

/// Adds the options of films to a command line.
void add_film_options(CLI::App& app, FilmOptions& options);

/// @param scene  whether a scene is asked for
/// @return "", or a line that tells which options do not go together
std::string film_conflict(FilmOptions const& options, bool scene);
