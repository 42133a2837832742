#pragma once

#include "kore/demo.h"
#include "kore/statedata.h"
#include "runtime/beatclock.h"
#include "runtime/debugcamera.h"

/// The show at a fixed 60 frames a second, frame by frame, on the current OpenGL context: frame i has time i / 60. It
/// counts beats, updates and draws as the program's own loop does.
class Playback {
public:
    /// Sets OpenGL's state and loads the show. As in the program, a mesh that cannot be had ends the process.
    Playback();

    kore::Demo& GetDemo() { return demo; }

    /// The frame that comes next, counted from 0, and the state of the last one.
    int NextFrame() const { return next; }
    kore::StateData const& State() const { return state; }

    /// Plays the next frame unseen: everything moves on, nothing is drawn. What later frames look like does not depend
    /// on whether this one was drawn.
    void Skip();

    /// Plays and draws the next frame.
    void Draw();

    /// Plays up to a frame, which must not have been played yet, and draws this one only.
    void DrawFrame(int frame);

private:
    void Begin();
    void End();

    float beat; ///< length, seconds
    BeatClock beats;
    kore::StateData state;
    kore::Demo demo;
    DebugCamera view;
    int next = 0;
};
