// SPDX-License-Identifier: MIT
#include "tools/record/framerate.h"

#include <gtest/gtest.h>

TEST(FrameRates, AreReadAsNumbersAndRatios) {
    EXPECT_EQ(parse_rate("60"), (FrameRate{60, 1}));
    EXPECT_EQ(parse_rate("24"), (FrameRate{24, 1}));
    EXPECT_EQ(parse_rate("240"), (FrameRate{240, 1}));
    EXPECT_EQ(parse_rate("60000/1001"), (FrameRate{60000, 1001}));
    EXPECT_EQ(parse_rate("24000/1001"), (FrameRate{24000, 1001})) << "the slowest";
    EXPECT_EQ(parse_rate("480/2"), (FrameRate{480, 2})) << "the fastest";
}

TEST(FrameRates, RefuseEverythingElse) {
    for (char const* const text : {"", "23", "241", "0", "-60", "60.5", "x", "60/", "/1", "60/0", "60/1/1", " 60",
                                   "60/-1", "23999/1001", "481/2", "99999999999999", "60/99999999999999", "0x3c"}) {
        EXPECT_FALSE(parse_rate(text).has_value()) << text;
    }
}

TEST(FrameRates, AreWrittenAsTheyAreRead) {
    for (char const* const text : {"60", "60000/1001"}) EXPECT_EQ(parse_rate(text).value().Text(), text);
}

TEST(FrameRates, TellWhichSampleAFrameBeginsOn) {
    EXPECT_EQ((FrameRate{60}.SampleAt(0, 48000)), 0);
    EXPECT_EQ((FrameRate{60}.SampleAt(10472, 48000)), 8377600);
    EXPECT_EQ((FrameRate{60000, 1001}.SampleAt(1, 48000)), 801) << "800.8";
    EXPECT_EQ((FrameRate{60000, 1001}.SampleAt(2, 48000)), 1602) << "1601.6";
    EXPECT_EQ((FrameRate{60000, 1001}.SampleAt(60000, 48000)), 48048000);
    EXPECT_EQ((FrameRate{64}.SampleAt(1, 96)), 2) << "1.5";
    EXPECT_EQ((FrameRate{240}.SampleAt(1000000, 48000)), 200000000);
}

TEST(FrameRates, TellHowManyFramesHoldTheSound) {
    EXPECT_EQ((FrameRate{60}.FramesFor(0, 48000)), 0);
    EXPECT_EQ((FrameRate{60}.FramesFor(800, 48000)), 1);
    EXPECT_EQ((FrameRate{60}.FramesFor(801, 48000)), 2);
    EXPECT_EQ((FrameRate{60000, 1001}.FramesFor(48048000, 48000)), 60000);
    EXPECT_EQ((FrameRate{60000, 1001}.FramesFor(48048001, 48000)), 60001);
}
