// SPDX-License-Identifier: MIT
#pragma once

/// Holds a loop to a frame rate by deadlines: each frame is due one interval after the last was due, so that the rate
/// is exact however late a sleep wakes.
class Pacer {
public:
    /// When the pacer sets in.
    enum class From {
        FirstFrame,
        TooFast, ///< once 60 frames came more than a tenth too fast: nothing else holds the loop back
    };

    /// @param rate  frames a second; 0 for no pace
    Pacer(double rate, From from) : my_rate(rate), active(from == From::FirstFrame) {}

    /// To be asked once a frame, when it is drawn.
    /// @param now  seconds
    /// @return when the frame is to be shown, seconds: now or later. After a frame that is late by an interval or more
    ///         the deadlines start anew, instead of hurrying to catch up.
    double Due(double now);

private:
    void Watch(double now);

    double my_rate;
    bool active;
    bool started = false;
    double due = 0;   ///< seconds
    double since = 0; ///< when the frames counted began, seconds
    int frames = 0;
};
