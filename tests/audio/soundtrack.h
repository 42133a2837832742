// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

/// The finished soundtrack as the tests see it: decoded samples, and the show's timeline in beats.
namespace soundtrack {

constexpr double tempo = 132;               ///< beats per minute
constexpr double beat_seconds = 60 / tempo; ///< one beat, seconds
constexpr int show_beats = 384;             ///< beats from the first sample to the last chord
constexpr unsigned rate = 48000;            ///< samples per second that the program asks for
constexpr double tail_seconds = 4;          ///< the longest tail after the last beat, seconds

/// Decoded music. `left` and `right` hold one value per sample, -1 to 1; for a mono file `right` is empty.
struct Recording {
    unsigned rate = 0;     ///< samples per second, 0 when the file could not be read
    unsigned channels = 0; ///< 1 or 2 and so on, 0 when the file could not be read
    std::vector<float> left;
    std::vector<float> right;

    [[nodiscard]] std::size_t Count() const { return left.size(); }
    /// The middle of both sides, one value per sample.
    [[nodiscard]] std::vector<float> Middle() const;
    /// Half the difference of both sides, one value per sample.
    [[nodiscard]] std::vector<float> Side() const;
};

/// Decodes a file through the same library that plays it. Returns an empty Recording when it cannot be read.
Recording decode(std::string const& path);

/// Path of the file under test: data/rump2.ogg of the source tree, or what HARDSILENCE_SOUNDTRACK says.
std::string path();

/// The file under test, decoded once per run.
Recording const& recording();

/// First sample of a beat of the show, rounded; beats may be fractions.
std::size_t sample_at(double beat);

/// A stretch of the show, in beats.
struct Stretch {
    char const* name;
    double from;
    double to; ///< not included
};

/// The eight sections, in order.
std::vector<Stretch> const& sections();

/// Where everything stops dead: the last beat (or half of it) before a scene changes.
std::vector<Stretch> const& hard_silences();

/// Where kick and bass play together.
std::vector<Stretch> const& grooves();

} // namespace soundtrack
