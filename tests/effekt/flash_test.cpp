// SPDX-License-Identifier: MIT
#include "effekt/flash.h"

#include "tests/effekt/support.h"

using effect_test::state_at;

namespace {

class Flash : public effect_test::EffectTest {
protected:
    /// The clearing calls of a frame.
    std::string ClearAt(float t, int beat) {
        flash.UpdateLogic(state_at(t, beat));
        return Clear();
    }
    std::string Clear() {
        gl::clear_log();
        flash.Draw();
        return gl::calls();
    }
    static std::string Grey(std::string const& level) {
        return "ClearColor(" + level + ',' + level + ',' + level + ",0) Clear(COLOR)";
    }

    effect::Flash flash;
};

struct Frame {
    char const* what;
    float t;
    int beat;
    char const* level;
};

TEST_F(Flash, ClearsToBlackUntilItsFirstBeat) {
    EXPECT_STREQ(flash.Name(), "Flash");
    EXPECT_EQ(Clear(), Grey("0"));
    flash.AddFlash(4);
    EXPECT_EQ(ClearAt(1, 3), Grey("0"));
}

TEST_F(Flash, LightsUpOnItsBeatsAndFadesInAStraightLine) {
    flash.AddFlash(4);
    flash.AddFlash(8);
    // clang-format off
    Frame const frames[] = {
        {"before",                 0,     3,  "0"},
        {"the beat",               2,     4,  "1"},
        {"still that beat",        2.5f,  4,  "0.75"},
        {"half",                   3,     5,  "0.5"},
        {"nearly out",             3.75f, 6,  "0.125"},
        {"out",                    4,     7,  "0"},
        {"and out it stays",       5,     7,  "0"},
        {"the next beat",          5.5f,  8,  "1"},
        {"fading",                 6.5f,  9,  "0.5"},
        {"a frame beyond the end", 99,    10, "0"},
    };
    // clang-format on
    for (Frame const& frame : frames) {
        SCOPED_TRACE(frame.what);
        EXPECT_EQ(ClearAt(frame.t, frame.beat), Grey(frame.level));
    }
}

TEST_F(Flash, RestartsOnABeatDuringAFlash) {
    flash.AddFlash(1);
    flash.AddFlash(2);
    flash.UpdateLogic(state_at(1, 1));
    EXPECT_EQ(ClearAt(2, 1), Grey("0.5"));
    EXPECT_EQ(ClearAt(2.5f, 2), Grey("1"));
    EXPECT_EQ(ClearAt(3.5f, 2), Grey("0.5"));
}

TEST_F(Flash, WaitsForABeatThatWasSkippedAndNeverFlashesAgain) {
    flash.AddFlash(1);
    flash.AddFlash(3);
    flash.AddFlash(5);
    EXPECT_EQ(ClearAt(0, 1), Grey("1"));
    EXPECT_EQ(ClearAt(9, 2), Grey("0"));
    EXPECT_EQ(ClearAt(10, 4), Grey("0")); // beat 3 was skipped
    EXPECT_EQ(ClearAt(11, 5), Grey("0"));
}

TEST_F(Flash, TakesOneEntryAFrame) {
    flash.AddFlash(1);
    flash.AddFlash(1);
    flash.UpdateLogic(state_at(0, 1));
    EXPECT_EQ(ClearAt(1, 1), Grey("1")); // the second entry, started over
    EXPECT_EQ(ClearAt(2, 1), Grey("0.5"));
}

TEST_F(Flash, StaysAtItsPeakForATimeBeforeItsStart) {
    flash.AddFlash(1);
    flash.UpdateLogic(state_at(5, 1));
    EXPECT_EQ(ClearAt(4, 1), Grey("1"));
}

TEST_F(Flash, TakesTheDurationAndTheColourThatItIsGiven) {
    flash.AddFlash(0);
    flash.SetDuration(4);
    flash.SetColor({1, 0.5f, 0.25f, 0.75f});
    flash.UpdateLogic(state_at(0, 0));
    EXPECT_EQ(ClearAt(2, 0), "ClearColor(0.5,0.25,0.125,0) Clear(COLOR)");
}

TEST_F(Flash, DrawsNothingButTheClear) {
    flash.SetPos({1, 2, 3});
    EXPECT_EQ(Clear(), Grey("0"));
    gl::clear_log();
    flash.InternalDraw();
    EXPECT_EQ(gl::call_count(), 0u);
}

} // namespace
