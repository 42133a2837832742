#pragma once

#include "runtime/beatclock.h"
#include "runtime/frame.h"
#include "show/show.h"

#include <functional>
#include <string>

/// Plays the whole show in virtual time, with the frame code of the program.
namespace wholeshow {

/// Tells when its scene starts, and clears as ever.
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
    float const beat = beat2seconds(beats_per_minute, 4);
    kore::Demo demo(beat);
    init_demo(demo, nullptr, beat);
    std::string scene;
    bool first = false;
    for (auto const& s : demo.GetScenes()) {
        s->SetPrepare(std::make_shared<StartNotice>([&scene, &first, name = s->Name()] {
            scene = name;
            first = true;
        }));
    }
    BeatClock clock(beat);
    kore::StateData state;
    DebugCamera const view;
    for (int n = 0; !demo.GetFinished(); ++n) {
        state.time = static_cast<float>(n) / fps;
        clock.Count(state);
        before();
        draw_frame(demo, state, view);
        after({scene, state.beat_count, first});
        first = false;
        state.new_beat = false;
    }
    return state.beat_count;
}

} // namespace wholeshow
