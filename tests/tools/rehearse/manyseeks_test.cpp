// SPDX-License-Identifier: MIT
// Meant for the build with sanitizers.

#include "show/show.h"
#include "tools/rehearse/rehearsal.h"

#include <gtest/gtest.h>
#include <random>

TEST(Seek, SurvivesAThousandSeeks) {
    std::mt19937 random(23);
    Rehearsal rehearsal([](kore::Demo& demo) { init_demo(demo, nullptr, beat_seconds); });
    std::uniform_int_distribution<int> frame(0, rehearsal.Frames() - 1);
    for (int i = 0; i < 1000; ++i) {
        int const to = frame(random);
        rehearsal.Seek(to);
        rehearsal.Draw();
        ASSERT_EQ(rehearsal.Frame(), to);
    }
}
