// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

/// The times between all frames of a show.
class FrameTimes {
public:
    FrameTimes() { times.reserve(expected); }

    /// To be told once a frame, when it is shown.
    /// @param now  seconds
    void Shown(double now);

    /// @param share  0 to 1: of the frames
    /// @return the time that this share of the frames took at most, seconds; 0 without frames
    double Percentile(double share) const;

    /// One line: how many frames, and their percentiles in milliseconds.
    std::string Report() const;

private:
    static constexpr std::size_t expected = 1U << 15U; ///< frames: a show and a half at 120 a second
    std::vector<float> times;                          ///< seconds
    double last = -1;                                  ///< seconds; below 0 before the first frame
};
