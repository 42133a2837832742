#pragma once

#include "kore/demo.h"
#include "runtime/beatclock.h"
#include "runtime/frame.h"

#include <cstddef>
#include <functional>

namespace bench {

/// The whole show in virtual time: 60 frames per second, from the first beat to the last.
class ShowRun {
public:
    ShowRun();

    /// Readies the next frame.
    /// @return false at the end of the show
    bool Next();

    /// Updates and draws the frame that Next has readied.
    void Frame() {
        demo.UpdateLogic(state);
        draw_frame(demo, view);
    }

    /// Scene of the frame, counted from 0.
    std::size_t Scene() const { return scene; }
    int FrameNumber() const { return frame; }
    char const* SceneName(std::size_t i) { return demo.GetScenes()[i]->Name(); }
    std::size_t SceneCount() { return demo.GetScenes().size(); }

private:
    float beat;
    BeatClock beats;
    kore::Demo demo;
    kore::StateData state;
    DebugCamera view;
    int frame = -1;
    std::size_t scene = 0;
    int scene_end = 0; ///< beat
    int total_beats = 0;
};

} // namespace bench
