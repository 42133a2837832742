// SPDX-License-Identifier: MIT
#pragma once

#include "kore/demo.h"
#include "runtime/playback.h"
#include "tools/record/beats.h"

#include <functional>
#include <optional>

/// A show that is looked at frame by frame, in any order. A frame is the recorder's of that number: 60 a second, its
/// logic replayed from the start of the show and nothing but itself drawn.
class Rehearsal {
public:
    /// Adds the scenes of a show to a demo; see init_demo.
    using Builder = std::function<void(kore::Demo&)>;

    /// Builds the show, on the current OpenGL context, which must outlive this. Its display lists belong to this alone.
    explicit Rehearsal(Builder build);
    ~Rehearsal();
    Rehearsal(Rehearsal const&) = delete;
    Rehearsal& operator=(Rehearsal const&) = delete;

    /// Replays the show up to a frame, which then is the one shown; a frame before the first or after the last is the
    /// first or the last one. Going back builds the show anew, for its objects only know the way on.
    void Seek(int frame);

    /// Builds the show anew from its files, as they are now, and goes to the frame that was shown.
    void Rebuild();

    /// Draws the frame that is shown.
    /// @param view  where it is free, the view that stands in for the scenes' cameras
    void Draw(DebugCamera const& view = {}) { show->playback.DrawAgain(view); }

    /// The frame that is shown, counted from 0.
    int Frame() const { return show->playback.NextFrame() - 1; }

    /// How many frames the show has.
    int Frames() const { return frames; }

    kore::Demo& Demo() { return show->demo; }
    kore::StateData const& State() const { return show->playback.State(); }

private:
    struct Show {
        Show() : demo(beat_seconds), playback(demo, recorded_rate) {}

        kore::Demo demo;
        Playback playback;
    };

    void Build();
    void Drop();

    Builder my_build;
    std::optional<Show> show;
    unsigned int first_list = 0; ///< the display lists made with the show lie between these two
    unsigned int last_list = 0;
    int frames = 0;
};
