// SPDX-License-Identifier: MIT
#include "runtime/beatclock.h"
#include "tests/show/scores.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>

namespace {

TEST(BeatLength, IsTheFloatNearestToSixtyByTheTempo) {
    EXPECT_EQ(std::bit_cast<std::uint32_t>(beat2seconds(132, 4)), 0x3EE8BA2Fu); // 0.45454547
    EXPECT_EQ(beat2seconds(132, 4), 60.0f / 132.0f);
    EXPECT_EQ(beat2seconds(120, 4), 0.5f);
    EXPECT_EQ(beat2seconds(120, 1), 0.125f);
    EXPECT_EQ(beat2seconds(60, 0), 0.0f);
    EXPECT_EQ(beats_per_minute, 132);
}

class BeatClock : public testing::Test {
protected:
    void At(float t) {
        state.time = t;
        state.new_beat = false;
        clock.Count(state);
    }
    float const beat = beat2seconds(132, 4);
    ::BeatClock clock{beat2seconds(132, 4)};
    kore::StateData state;
};

TEST_F(BeatClock, CountsBeatZeroOnTheFirstFrame) {
    for (float const t : {0.0f, 0.001f}) {
        ::BeatClock fresh(beat);
        kore::StateData first;
        first.time = t;
        fresh.Count(first);
        EXPECT_EQ(first.beat_count, 0);
        EXPECT_TRUE(first.new_beat);
        EXPECT_EQ(first.time, t);
    }
}

TEST_F(BeatClock, CountsTheNextBeatWhenItsTimeHasCome) {
    At(0);
    At(0.4f);
    EXPECT_EQ(state.beat_count, 0);
    EXPECT_FALSE(state.new_beat);
    At(0.46f);
    EXPECT_EQ(state.beat_count, 1);
    EXPECT_TRUE(state.new_beat);
}

TEST_F(BeatClock, CountsABeatAtItsVeryTime) {
    At(0);
    At(beat);
    EXPECT_EQ(state.beat_count, 1);
    At(std::nextafter(beat + beat, 0.0f));
    EXPECT_EQ(state.beat_count, 1);
    At(beat + beat);
    EXPECT_EQ(state.beat_count, 2);
}

TEST_F(BeatClock, CatchesUpByOneBeatAFrameAfterAStall) {
    At(0);
    At(2.0f); // four beats late
    EXPECT_EQ(state.beat_count, 1);
    for (int const expected : {2, 3, 4}) {
        At(2.0f);
        EXPECT_EQ(state.beat_count, expected);
        EXPECT_TRUE(state.new_beat);
    }
    At(2.0f);
    EXPECT_EQ(state.beat_count, 4);
    EXPECT_FALSE(state.new_beat);
}

TEST_F(BeatClock, KeepsToItsGridAfterAStall) {
    At(0);
    for (int i = 0; i < 5; ++i) At(2.0f);
    At(2.27f);
    EXPECT_EQ(state.beat_count, 4); // 5 x 0.4545 = 2.2727
    At(2.28f);
    EXPECT_EQ(state.beat_count, 5);
}

TEST_F(BeatClock, DoesNotDriftFromTheTempoOverTheShow) {
    // The sum of float beats: a millisecond at most at the show's end.
    for (int frame = 0; state.beat_count < scores::show_beats; ++frame) At(static_cast<float>(frame) / 1000);
    EXPECT_NEAR(state.time, scores::show_beats * 60 / 132.0, 0.002);
}

TEST(PauseClock, IsTheClockUntilTheFirstPause) {
    ::PauseClock pauses;
    EXPECT_FALSE(pauses.Paused());
    EXPECT_EQ(pauses.ShowTime(3.5f), 3.5f);
}

TEST(PauseClock, StandsStillDuringAPauseAndGoesOnWhereItStopped) {
    ::PauseClock pauses;
    pauses.ShowTime(5);
    pauses.Toggle(5);
    EXPECT_TRUE(pauses.Paused());
    for (float const now : {5.0f, 9.0f, 15.0f}) EXPECT_EQ(pauses.ShowTime(now), 5);
    pauses.Toggle(15);
    EXPECT_FALSE(pauses.Paused());
    EXPECT_EQ(pauses.ShowTime(15), 5);
    EXPECT_EQ(pauses.ShowTime(16), 6);
}

TEST(PauseClock, AddsUpItsPauses) {
    ::PauseClock pauses;
    pauses.Toggle(1);
    pauses.ShowTime(3);
    pauses.Toggle(3);
    pauses.Toggle(4);
    pauses.ShowTime(8);
    pauses.Toggle(8);
    EXPECT_EQ(pauses.ShowTime(10), 4);
}

TEST(PauseClock, IgnoresAPauseThatEndsOnTheFrameItBegan) {
    ::PauseClock pauses;
    pauses.Toggle(2);
    pauses.Toggle(2);
    EXPECT_EQ(pauses.ShowTime(3), 3);
}

TEST(PauseClock, ShiftsTheBeatGridByThePause) {
    ::PauseClock pauses;
    ::BeatClock beats(0.5f);
    kore::StateData state;
    auto const frame = [&](float now) {
        state.new_beat = false;
        state.time = pauses.ShowTime(now);
        beats.Count(state);
    };
    frame(0);
    frame(0.3f);
    pauses.Toggle(0.3f);
    for (float const now : {0.3f, 5.0f, 10.3f}) {
        frame(now);
        EXPECT_EQ(state.beat_count, 0);
    }
    pauses.Toggle(10.3f);
    frame(10.4f);
    EXPECT_EQ(state.beat_count, 0);
    frame(10.55f);
    EXPECT_EQ(state.beat_count, 1);
}

} // namespace
