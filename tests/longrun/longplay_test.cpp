// The longest show there is: somebody with the debugging keys skips scenes for 75 minutes.

#include "main.h"
#include "show/show.h"
#include "tests/support/effort.h"

#include <functional>
#include <gtest/gtest.h>
#include <iostream>
#include <random>

namespace {

constexpr int last_scene = 7;
constexpr float frame_rate = 60;

/// Tells when its scene starts.
class StartNotice final : public kore::ScenePrepare {
public:
    explicit StartNotice(std::function<void()> notice_) : notice(std::move(notice_)) {}
    void Start() override { notice(); }

private:
    std::function<void()> notice;
};

/// Plays without drawing and keeps count of the scene that must be on.
class LongPlay : public testing::Test {
protected:
    LongPlay() {
        quit = false;
        init_demo(demo, nullptr, beat);
        for (int i = 0; i <= last_scene; ++i) {
            demo.GetScenes()[static_cast<std::size_t>(i)]->SetPrepare(
                std::make_shared<StartNotice>([this, i] { Started(i); }));
        }
    }

    void Started(int scene) {
        ASSERT_EQ(scene, expected) << "at beat " << state.beat_count << ", seed " << seed;
        current = scene;
        scene_start = state.beat_count;
        ++starts[scene];
    }

    int CurrentLength() { return demo.GetScenes()[static_cast<std::size_t>(current)]->GetLength(); }

    /// Once a beat, before the frame that counts the next: skips at random, and always out of the last scene's last
    /// beats, for their end is the end of the show.
    void Keys() {
        int const left = scene_start + CurrentLength() - state.beat_count;
        bool const must = current == last_scene && left <= 1;
        expected = left <= 1 ? current + 1 : current;
        if (!must && random() % beats_a_skip != 0) return;
        int step = random() % 2 ? 1 : -1;
        step > 0 ? demo.SkipSceneFw() : demo.SkipSceneBw();
        expected = current + step;
        if (expected < 0 || expected > last_scene) expected = 0;
        ++skips;
    }

    void Frame() {
        state.time = static_cast<float>(frame++) / frame_rate;
        beats.Count(state);
        demo.UpdateLogic(state);
        if (state.new_beat) Keys();
        state.new_beat = false;
    }

    static constexpr unsigned int beats_a_skip = 40;

    unsigned int const seed = support::seed();
    std::mt19937 random{seed};
    float const beat = beat2seconds(beats_per_minute, 4);
    kore::Demo demo{beat};
    BeatClock beats{beat};
    kore::StateData state;
    int frame = 0;
    int current = 0;
    int expected = 0;
    int scene_start = 0;
    int skips = 0;
    int starts[last_scene + 1] = {};
};

TEST_F(LongPlay, EndsBehindBeat9998WhateverIsSkipped) {
    ASSERT_EQ(demo.GetScenes().size(), static_cast<std::size_t>(last_scene + 1));
    do {
        Frame();
        if (HasFatalFailure()) return;
    } while (!show_over(state.beat_count, demo));
    EXPECT_EQ(state.beat_count, 9999);
    EXPECT_FALSE(demo.GetFinished());
    int all = 0;
    for (int const n : starts) {
        EXPECT_GT(n, 0) << "seed " << seed;
        all += n;
    }
    EXPECT_GE(all, skips);
    std::cout << frame << " frames, " << all << " scenes, " << skips << " skips, seed " << seed << '\n';
}

TEST_F(LongPlay, EndsWithTheLastSceneWhereNothingIsSkipped) {
    do {
        expected = state.beat_count + 1 >= scene_start + CurrentLength() ? current + 1 : current;
        state.time = static_cast<float>(frame++) / frame_rate;
        beats.Count(state);
        demo.UpdateLogic(state);
        state.new_beat = false;
    } while (!show_over(state.beat_count, demo));
    EXPECT_TRUE(demo.GetFinished());
    EXPECT_EQ(state.beat_count, 384);
    for (int const n : starts) EXPECT_EQ(n, 1);
}

} // namespace
