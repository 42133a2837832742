// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

/// A film's frame rate: so many frames in so many seconds, both above 0. 60000 frames in 1001 seconds is the 59.94 of
/// television.
struct FrameRate {
    int frames = 60;
    int seconds = 1;

    double PerSecond() const { return static_cast<double>(frames) / seconds; }

    /// "60" or "60000/1001".
    std::string Text() const;

    /// The sample of sound on which a frame begins: the nearest one, halves rounded up.
    /// @param frame        counted from 0
    /// @param sample_rate  samples per second
    long long SampleAt(long long frame, int sample_rate) const;

    /// How many frames it takes to hold a number of samples.
    long long FramesFor(long long samples, int sample_rate) const;

    bool operator==(FrameRate const&) const = default;
};

/// Reads "60" or "60000/1001".
/// @return nothing for anything else, and for rates below 24000/1001 or above 240
std::optional<FrameRate> parse_rate(std::string const& text);
