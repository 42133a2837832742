// SPDX-License-Identifier: MIT
// The longest possible show: somebody skips scenes with the debugging keys for 75 minutes.

#include "main.h"
#include "tests/show/scores.h"
#include "tests/show/wholeshow.h"
#include "tests/support/effort.h"

#include <gtest/gtest.h>
#include <iostream>
#include <random>

namespace {

constexpr float frame_rate = 60;

/// Plays without drawing and keeps track of the scene that must be on.
class LongPlay : public testing::Test {
protected:
    LongPlay() {
        quit = false;
        init_demo(demo, nullptr, beat_seconds);
        for (std::size_t i = 0; i <= last_scene; ++i) {
            demo.GetScenes()[i]->SetPrepare(std::make_shared<wholeshow::StartNotice>([this, i] { Started(i); }));
        }
    }

    void Started(std::size_t scene) {
        ASSERT_EQ(scene, expected) << "at beat " << State().beat_count << ", seed " << seed;
        current = scene;
        scene_start = State().beat_count;
        ++starts[scene];
    }

    int CurrentLength() { return demo.GetScenes()[current]->GetLength(); }
    kore::StateData const& State() const { return playback.State(); }

    /// Once a beat, before the frame that counts the next: skips at random, and always in the last beats of the last
    /// scene, which would end the show.
    void Keys() {
        int const left = scene_start + CurrentLength() - State().beat_count;
        bool const must = current == last_scene && left <= 1;
        expected = left <= 1 ? current + 1 : current;
        if (!must && random() % beats_a_skip != 0) return;
        bool const forward = random() % 2 == 1;
        forward ? demo.SkipSceneFw() : demo.SkipSceneBw();
        expected = forward ? current + 1 : current - 1; // below 0 is very large
        if (expected > last_scene) expected = 0;
        ++skips;
    }

    void Frame() {
        playback.Skip();
        if (State().new_beat) Keys();
    }

    static constexpr unsigned int beats_a_skip = 40;

    unsigned int const seed = support::seed();
    std::mt19937 random{seed};
    kore::Demo demo{beat_seconds};
    Playback playback{demo, frame_rate};
    std::size_t const last_scene = running_order().size() - 1;
    std::size_t current = 0;
    std::size_t expected = 0;
    int scene_start = 0;
    int skips = 0;
    std::vector<int> starts = std::vector<int>(running_order().size());
};

TEST_F(LongPlay, EndsAfterBeat9998WhateverIsSkipped) {
    do {
        Frame();
        if (HasFatalFailure()) return;
    } while (!show_over(State().beat_count, demo));
    EXPECT_EQ(State().beat_count, 9999);
    EXPECT_FALSE(demo.GetFinished());
    int all = 0;
    for (int const n : starts) {
        EXPECT_GT(n, 0) << "seed " << seed;
        all += n;
    }
    EXPECT_GE(all, skips);
    std::cout << playback.NextFrame() << " frames, " << all << " scenes, " << skips << " skips, seed " << seed << '\n';
}

TEST_F(LongPlay, EndsWithTheLastSceneWhereNothingIsSkipped) {
    do {
        expected = State().beat_count + 1 >= scene_start + CurrentLength() ? current + 1 : current;
        playback.Skip();
    } while (!show_over(State().beat_count, demo));
    EXPECT_TRUE(demo.GetFinished());
    EXPECT_EQ(State().beat_count, scores::show_beats);
    for (int const n : starts) EXPECT_EQ(n, 1);
}

} // namespace
