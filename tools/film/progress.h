// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <string>

/// A line that tells how far the film is: "[#####...............]  2678 of 10712 frames, 15.3 a second, 8:45 left".
/// @param done     frames made
/// @param all      frames to be made, above 0
/// @param seconds  time taken so far
std::string progress_line(int done, int all, double seconds);

/// Shows it on standard error, where that is a terminal, five times a second at most.
class Progress {
public:
    explicit Progress(int all);

    void Show(int done);

    /// Leaves the line as it is and goes to the next.
    void End();

private:
    using Clock = std::chrono::steady_clock;

    int my_all;
    bool terminal;
    bool shown = false;
    Clock::time_point start = Clock::now();
    Clock::time_point last;
};
