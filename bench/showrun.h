// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/playback.h"

#include <cstddef>

namespace bench {

/// The whole show in virtual time: 60 frames per second, from the first beat to the last.
class ShowRun {
public:
    ShowRun();

    /// Looks at the next frame.
    /// @return false at the end of the show
    bool Next();

    /// Updates and draws the frame that Next has looked at.
    void Frame() { playback.Draw(); }

    /// Number and scene of that frame, both counted from 0; before Frame.
    int FrameNumber() const { return playback.NextFrame(); }
    std::size_t Scene() const { return scene; }

    char const* SceneName(std::size_t i) { return demo.GetScenes()[i]->Name(); }
    std::size_t SceneCount() { return demo.GetScenes().size(); }

private:
    kore::Demo demo{beat_seconds};
    Playback playback{demo, 60};
    std::size_t scene = 0;
    int scene_end = 0; ///< beat
};

} // namespace bench
