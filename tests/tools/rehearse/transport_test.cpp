// SPDX-License-Identifier: MIT
#include "tools/rehearse/transport.h"

#include <gtest/gtest.h>

namespace {

constexpr int frames = 3000; // 110 beats

Transport at(int frame, bool playing = false) {
    Transport transport(frames);
    transport.Seek(frame);
    transport.SetPlaying(playing);
    return transport;
}

} // namespace

TEST(Transport, StandsAtTheBeginningAtFirst) {
    Transport transport(frames);
    EXPECT_EQ(transport.Frame(), 0);
    EXPECT_FALSE(transport.Playing());
    EXPECT_FALSE(transport.Advance(10));
    EXPECT_EQ(transport.Frame(), 0);
}

TEST(Transport, PlaysSixtyFramesASecondTimesItsSpeed) {
    Transport transport = at(0, true);
    EXPECT_FALSE(transport.Advance(0.5));
    EXPECT_EQ(transport.Frame(), 30);
    for (int i = 0; i < 5; ++i) transport.Slower();
    EXPECT_EQ(transport.Speed(), 0.125);
    transport.Advance(0.2);
    EXPECT_EQ(transport.Frame(), 31);
    for (int i = 0; i < 9; ++i) transport.Faster();
    EXPECT_EQ(transport.Speed(), 2);
    transport.Advance(1);
    EXPECT_EQ(transport.Frame(), 151);
    transport.NormalSpeed();
    EXPECT_EQ(transport.Speed(), 1);
}

TEST(Transport, StepsByFramesWithinTheShow) {
    Transport transport = at(7);
    transport.StepFrames(1);
    EXPECT_EQ(transport.Frame(), 8);
    transport.StepFrames(-9);
    EXPECT_EQ(transport.Frame(), 0);
    transport.StepFrames(99999);
    EXPECT_EQ(transport.Frame(), frames - 1);
}

TEST(Transport, StepsToTheFramesOfBeatsAndBars) {
    struct Row {
        int from;
        int beats;
        int bars;
        int to;
    };
    // A beat is 27.27 frames: beats 1, 2, 3, 4 and 8 come on frames 28, 55, 82, 110 and 219.
    Row const rows[] = {{0, 1, 0, 28},     {1, 1, 0, 28},   {28, 1, 0, 55},   {0, -1, 0, 0},  {27, -1, 0, 0},
                        {28, -1, 0, 0},    {29, -1, 0, 28}, {110, -2, 0, 55}, {0, 0, 1, 110}, {110, 0, 1, 219},
                        {111, 0, -1, 110}, {110, 0, -1, 0}, {109, 0, 1, 110}};
    for (Row const& row : rows) {
        SCOPED_TRACE(testing::Message() << row.from << " by " << row.beats << " beats, " << row.bars << " bars");
        Transport transport = at(row.from);
        row.beats != 0 ? transport.StepBeats(row.beats) : transport.StepBars(row.bars);
        EXPECT_EQ(transport.Frame(), row.to);
    }
}

TEST(Transport, StepsBackFromJustBehindABeatToTheOneBeforeWhileItPlays) {
    Transport playing = at(57, true);
    playing.StepBeats(-1);
    EXPECT_EQ(playing.Frame(), 28);
    Transport standing = at(57);
    standing.StepBeats(-1);
    EXPECT_EQ(standing.Frame(), 55);
}

TEST(Transport, LoopsFromOneMarkToTheOther) {
    Transport transport = at(100, true);
    transport.MarkFrom();
    EXPECT_EQ(transport.Looped(), (Transport::Loop{100, frames}));
    transport.Seek(160);
    transport.MarkTo();
    EXPECT_EQ(transport.Looped(), (Transport::Loop{100, 160}));
    transport.Seek(159);
    EXPECT_TRUE(transport.Advance(0.1));
    EXPECT_EQ(transport.Frame(), 100);
    transport.ClearLoop();
    transport.Seek(159);
    EXPECT_FALSE(transport.Advance(0.1));
    EXPECT_EQ(transport.Frame(), 165);
}

TEST(Transport, KeepsTheMarksOnTheirSides) {
    Transport transport = at(50);
    transport.MarkTo();
    EXPECT_EQ(transport.Looped(), (Transport::Loop{0, 50}));
    transport.Seek(70);
    transport.MarkFrom();
    EXPECT_EQ(transport.Looped(), (Transport::Loop{70, frames}));
    transport.Seek(60);
    transport.MarkTo();
    EXPECT_EQ(transport.Looped(), (Transport::Loop{0, 60}));
    transport.Seek(0);
    transport.MarkTo();
    EXPECT_EQ(transport.Looped(), (Transport::Loop{0, 1})) << "never empty";
}

TEST(Transport, StandsOnTheLastFrameAtTheEnd) {
    Transport transport = at(frames - 2, true);
    EXPECT_TRUE(transport.Advance(1));
    EXPECT_EQ(transport.Frame(), frames - 1);
    EXPECT_FALSE(transport.Playing());
}

TEST(Transport, FollowsAShowThatBecomesShorter) {
    Transport transport = at(2000);
    transport.MarkTo();
    transport.SetFrames(1500);
    EXPECT_EQ(transport.Frame(), 1499);
    EXPECT_FALSE(transport.Looped());
}
