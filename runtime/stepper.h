// SPDX-License-Identifier: MIT
#pragma once

#include "kore/demo.h"
#include "kore/statedata.h"
#include "runtime/beatclock.h"
#include "runtime/debugcamera.h"

/// Steps a show: a time comes in, beats are counted and the logic runs. Drawing is apart from that, and what a later
/// frame looks like does not depend on whether an earlier one was drawn.
class Stepper {
public:
    /// @param demo  must outlive the stepper
    /// @param beat  length of one beat, seconds
    Stepper(kore::Demo& demo, float beat) : my_demo(demo), beats(beat) {}

    /// Runs the logic of one frame.
    /// @param time  of the show, seconds
    /// @param fps   frame rate as last measured, frames per second
    void Update(float time, float fps);

    /// Draws the frame that was updated last, on the current OpenGL context.
    /// @param view  where it is free, the view that stands in for the scenes' cameras
    void Draw(DebugCamera const& view);

    kore::Demo& GetDemo() { return my_demo; }
    kore::Demo const& GetDemo() const { return my_demo; }

    /// The beat count of an update at this show time, in seconds, if it came next.
    int BeatAt(float time) const { return state.beat_count + (beats.IsDue(time) ? 1 : 0); }

    /// What the last update handed to the demo.
    kore::StateData const& State() const { return state; }

private:
    kore::Demo& my_demo;
    BeatClock beats;
    kore::StateData state;
};
