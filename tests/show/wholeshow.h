// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/playback.h"
#include "show/show.h"

#include <functional>
#include <string>

/// Plays the whole show in virtual time, with the frame code of the program.
namespace wholeshow {

/// Reports when its scene starts, and clears the picture as usual.
class StartNotice final : public kore::ScenePrepare {
public:
    explicit StartNotice(std::function<void()> notice_) : notice(std::move(notice_)) {}
    void Start() override { notice(); }

private:
    std::function<void()> notice;
};

struct Frame {
    std::string const& scene;
    int beat_count;
    bool first; ///< of its scene
};

/// @param fps     frames per second
/// @param before  called before each frame
/// @param after   called after each frame
/// @return show beat of the end
inline int play(float fps, std::function<void()> const& before, std::function<void(Frame const&)> const& after) {
    kore::Demo demo(beat_seconds);
    init_demo(demo, nullptr, beat_seconds);
    std::string scene;
    bool first = false;
    for (auto const& s : demo.GetScenes()) {
        s->SetPrepare(std::make_shared<StartNotice>([&scene, &first, name = s->Name()] {
            scene = name;
            first = true;
        }));
    }
    Playback playback(demo, fps);
    while (!demo.GetFinished()) {
        before();
        playback.Draw();
        after({scene, playback.State().beat_count, first});
        first = false;
    }
    return playback.State().beat_count;
}

} // namespace wholeshow
