// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/stepper.h"

/// The time of a frame, counted from 0, at a fixed rate in frames per second: seconds.
///
/// Where the rate is a whole number the result is that of a division in float too: a quotient of two floats that is
/// rounded to double and then to float is the correctly rounded one (Figueroa, "When is double rounding innocuous?").
constexpr float frame_time(int frame, double rate) { return static_cast<float>(frame / rate); }

/// Plays a show at a fixed frame rate: frame i has time i / rate. Reaching a late frame takes the logic of all frames
/// before it and none of their drawing, so it is exact and quick.
class Playback {
public:
    /// @param demo  must outlive the playback
    /// @param rate  frames per second
    /// @param beat  length of one beat, seconds
    Playback(kore::Demo& demo, double rate, float beat = beat_seconds) : stepper(demo, beat), my_rate(rate) {}

    kore::Demo& GetDemo() { return stepper.GetDemo(); }

    /// The frame that comes next, counted from 0, its beat, and the state of the last one.
    int NextFrame() const { return next; }
    int NextBeat() const { return stepper.BeatAt(NextTime()); }
    kore::StateData const& State() const { return stepper.State(); }

    /// Plays the next frame unseen.
    void Skip();

    /// Plays the frames before this one unseen, so that it comes next; nothing if it has been played already.
    void SkipTo(int frame);

    /// Plays and draws the next frame.
    /// @param view  where it is free, the view that stands in for the scenes' cameras
    void Draw(DebugCamera const& view = {});

    /// Draws the frame that was played last once more.
    void DrawAgain(DebugCamera const& view = {}) { stepper.Draw(view); }

private:
    float NextTime() const { return frame_time(next, my_rate); }

    Stepper stepper;
    double my_rate;
    int next = 0;
};
