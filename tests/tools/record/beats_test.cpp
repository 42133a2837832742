// SPDX-License-Identifier: MIT
#include "tools/record/beats.h"

#include "runtime/beatclock.h"
#include "runtime/playback.h"
#include "tests/show/scores.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

TEST(Beats, AreReadAsAList) {
    EXPECT_THAT(parse_beats("0.5").value(), ElementsAre(500));
    EXPECT_THAT(parse_beats("0.5,3.25,6,12.4").value(), ElementsAre(500, 3250, 6000, 12400));
    EXPECT_THAT(parse_beats("7,.5,0").value(), ElementsAre(7000, 500, 0)) << "in the order asked for";
}

TEST(Beats, AreReadAsRangesThatLeaveTheEndOut) {
    EXPECT_THAT(parse_beats("0:2:0.5").value(), ElementsAre(0, 500, 1000, 1500));
    EXPECT_THAT(parse_beats("1:2:0.4,9").value(), ElementsAre(1000, 1400, 1800, 9000));
}

TEST(Beats, AreTakenOnceOnly) { EXPECT_THAT(parse_beats("1,2,1.0,0:3:1").value(), ElementsAre(1000, 2000, 0)); }

TEST(Beats, AreThousandthsWithoutLosingAnyToBinaryFractions) {
    EXPECT_THAT(parse_beats("1.2500000000,1:1.002:0.0010").value(), ElementsAre(1250, 1000, 1001));
    for (Millibeats at = 0; at < scores::show_beats * one_beat; ++at) {
        ASSERT_THAT(parse_beats(padded_beat(at)).value(), ElementsAre(at));
    }
}

TEST(Beats, RefuseEverythingElse) {
    char const* const cases[] = {"",           ",",          "1,",
                                 ",1",         "x",          "1;2",
                                 "-1",         "-0",         "inf",
                                 "+1",         "1.2.3",      ".",
                                 "1e3",        "1 ",         "nan",
                                 "0:1",        "0:1:0.5:2",  "0:1:0",
                                 "2:1:1",      "1:1:1",      "0::1",
                                 ":1:1",       "0:x:1",      "1.9999",
                                 "0:1:0.0005", "0:1:0.0015", "1.00000000001",
                                 "1000",       "0x10",       "99999999999999999999"};
    EXPECT_FALSE(parse_beats(std::string(1000, '9')).has_value());
    for (char const* const text : cases) {
        SCOPED_TRACE(text);
        EXPECT_FALSE(parse_beats(text).has_value());
    }
}

TEST(Beats, AreAsManyAsThereAre) {
    std::string const all = "0:999:0.001";
    EXPECT_EQ(parse_beats(all).value().size(), 999000u);
    EXPECT_EQ(parse_beats(all + ",999").value().size(), 999001u);
    EXPECT_FALSE(parse_beats(all + "," + all).has_value()) << "the same again takes as long";
}

TEST(Beats, AreWrittenForFilesAndForPeople) {
    // clang-format off
    std::tuple<Millibeats, char const*, char const*> const cases[] = {
        {0,      "000.000", "0"},
        {500,    "000.500", "0.5"},
        {12400,  "012.400", "12.4"},
        {12050,  "012.050", "12.05"},
        {383999, "383.999", "383.999"},
        {100000, "100.000", "100"},
    };
    // clang-format on
    for (auto const& [at, padded, brief] : cases) {
        EXPECT_EQ(padded_beat(at), padded);
        EXPECT_EQ(short_beat(at), brief);
    }
}

TEST(Beats, AreShownByTheFirstFrameAtOrAfterThem) {
    EXPECT_EQ(frame_at(0), 0);
    EXPECT_EQ(frame_at(1000), 28) << "27.27 frames";
    EXPECT_EQ(frame_at(11000), 300) << "on the very frame";
    for (Millibeats at = 1; at < scores::show_beats * one_beat; ++at) {
        int const frame = frame_at(at);
        ASSERT_FALSE(frame_is_before(frame, at)) << at;
        ASSERT_TRUE(frame_is_before(frame - 1, at)) << at;
        double const seconds = at / 1000.0 * 60 / beats_per_minute;
        double const late = frame - seconds * recorded_rate;
        bool const on_a_frame = at % (11 * one_beat) == 0;
        ASSERT_GE(late, -1e-6) << at;
        ASSERT_LT(late, on_a_frame ? 1 + 1e-6 : 1 - 1e-6) << at;
    }
}

TEST(Beats, AreToldOfEveryFrame) {
    EXPECT_EQ(moment_of(0), 0);
    EXPECT_EQ(moment_of(150), 5500);
    EXPECT_EQ(moment_of(151), 5536);
    for (int frame = 0; frame < frame_at(384 * one_beat); ++frame) {
        Millibeats const at = moment_of(frame);
        ASSERT_EQ(frame_at(at), frame);
        ASSERT_GT(frame_at(at + 1), frame);
    }
}

TEST(Beats, WaitForTheClockWhereItIsAFrameLate) {
    EXPECT_EQ(frame_at(44000), 1200);
    EXPECT_EQ(frame_at(55000), 1501);
    EXPECT_TRUE(frame_is_before(1500, 55000));
    EXPECT_EQ(frame_at(54999), 1500);
    EXPECT_EQ(frame_at(55001), 1501);
}

TEST(Beats, AreCountedByTheShowsOwnClockOnThatFrame) {
    BeatClock clock(beat2seconds(beats_per_minute, 4));
    kore::StateData state;
    for (int frame = 0; frame <= frame_at(scores::show_beats * one_beat); ++frame) {
        state.time = static_cast<float>(frame) / static_cast<float>(recorded_rate);
        clock.Count(state);
        int const next = (state.beat_count + 1) * one_beat;
        ASSERT_GE(frame, frame_at(state.beat_count * one_beat)) << "counted too early";
        ASSERT_LT(frame, frame_at(next)) << "counted too late";
    }
    EXPECT_EQ(state.beat_count, scores::show_beats);
}

TEST(Beats, AreCountedByTheShowsOwnClockAtEveryRate) {
    for (FrameRate const rate : {FrameRate{24000, 1001}, FrameRate{24}, FrameRate{25}, FrameRate{30}, FrameRate{50},
                                 FrameRate{60000, 1001}, FrameRate{60}, FrameRate{144}, FrameRate{240}}) {
        SCOPED_TRACE(rate.Text());
        FrameGrid const grid(rate);
        BeatClock clock(beat2seconds(beats_per_minute, 4));
        kore::StateData state;
        for (int frame = 0; frame <= grid.FrameAt(scores::show_beats * one_beat); ++frame) {
            state.time = frame_time(frame, rate.PerSecond());
            clock.Count(state);
            ASSERT_GE(frame, grid.FrameAt(state.beat_count * one_beat)) << "counted too early";
            ASSERT_LT(frame, grid.FrameAt((state.beat_count + 1) * one_beat)) << "counted too late";
        }
        EXPECT_EQ(state.beat_count, scores::show_beats);
    }
}

TEST(Beats, LieOnTheFramesOfTheRate) {
    EXPECT_EQ(FrameGrid({30}).FrameAt(11000), 150);
    EXPECT_EQ(FrameGrid({24}).FrameAt(1000), 11) << "10.9 frames";
    EXPECT_EQ(FrameGrid({60000, 1001}).FrameAt(11000), 300) << "299.7 frames";
    EXPECT_EQ(FrameGrid({60}).FrameAt(55000), frame_at(55000));
}
