// SPDX-License-Identifier: MIT
#pragma once

#include "tools/record/framerate.h"

#include <optional>
#include <string>
#include <vector>

/// A moment of the show or of a scene in thousandths of a beat: integers, so that sums are exact.
using Millibeats = int;

constexpr Millibeats one_beat = 1000;

/// The frames per second at which pictures are taken, and films made unless they are asked for at another rate.
constexpr int recorded_rate = 60;

/// The longest show that the recorder can step, beats.
constexpr int most_beats = 999;

/// The first frame at or after a moment on which the show's clock has counted the moment's beat. At 132 beats a minute
/// and 60 frames a second 11 beats are 300 frames; there the clock, which adds up in float, counts some beats (the 55th
/// is the first) on the frame after.
/// @param at  from the show's first beat, 0 to most_beats
int frame_at(Millibeats at);

/// The moment of a frame: the latest one whose frame it is.
/// @param frame  from 0 on
Millibeats moment_of(int frame);

/// The frames of the beats at any rate.
class FrameGrid {
public:
    explicit FrameGrid(FrameRate rate);

    /// As frame_at. At some rates the clock counts a beat on the frame just before it; that frame is the beat's too.
    int FrameAt(Millibeats at) const;

private:
    FrameRate my_rate;
    std::vector<int> counted; ///< the frames on which the show's clock counts its beats
};

/// Whether a frame lies before a moment.
inline bool frame_is_before(int frame, Millibeats moment) { return frame < frame_at(moment); }

/// Reads "0.5,3.25" or "0:16:0.5" (from, to, step; the end is left out), or a list of both.
/// @param text  decimal numbers from 0 to most_beats, of three places at most
/// @return the moments in order, without repetitions; nothing if the text is anything else, a range is empty or there
///         are more than a million moments, repetitions counted
std::optional<std::vector<Millibeats>> parse_beats(std::string const& text);

/// Reads one such number.
std::optional<Millibeats> parse_beat(std::string const& text);

/// A moment as in file names, "012.400".
std::string padded_beat(Millibeats at);

/// A moment as in labels and messages, "12.4".
std::string short_beat(Millibeats at);
