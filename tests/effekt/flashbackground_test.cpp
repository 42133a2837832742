// SPDX-License-Identifier: MIT
#include "effekt/flashbackground.h"

#include "tests/effekt/support.h"

using effect_test::state_at;
using testing::HasSubstr;

namespace {

using Type = kore::BlinkerInterface::BlinkerType;

class FlashBackground : public effect_test::EffectTest {
protected:
    /// The turns of the first tile: "y,x".
    std::string Turn() {
        gl::clear_log();
        wall.InternalDraw();
        return gl::call_list()[2] + ' ' + gl::call_list()[3];
    }

    std::string TurnAt(float t) {
        wall.UpdateLogic(state_at(t));
        return Turn();
    }

    effect::FlashBackground wall;
};

/// How the tiles stand at a level of the flip.
std::string turn(double level) {
    char text[80];
    std::snprintf(text, sizeof text, "Rotate(%g,0,1,0) Rotate(%g,1,0,0)", level * 180, level * 360);
    return text;
}

constexpr std::size_t tile_calls = 7;

TEST_F(FlashBackground, CompilesOneTileOfAHundredUnits) {
    EXPECT_STREQ(wall.Name(), "FlashBackground");
    EXPECT_EQ(gl::calls(), "GenLists(1) NewList(COMPILE,1) EndList");
    EXPECT_EQ(gl::list_content(1),
              "Begin(QUADS) Vertex(-50,-50,0) Vertex(-50,50,0) Vertex(50,50,0) Vertex(50,-50,0) End");
}

TEST_F(FlashBackground, DrawsNineHundredTilesRowByRowAndTheBackdropBehindThem) {
    gl::name_list(1, "tile");
    wall.SetColor(5);
    gl::clear_log();
    wall.InternalDraw();
    std::vector<std::string> expected;
    auto const add = [&expected](std::initializer_list<std::string> calls) { expected.insert(expected.end(), calls); };
    for (int y = -1450; y <= 1450; y += 100) {
        for (int x = -1450; x <= 1450; x += 100) {
            add({"PushMatrix", "Translate(" + std::to_string(x) + ',' + std::to_string(y) + ",0)", "Rotate(180,0,1,0)",
                 "Rotate(360,1,0,0)", "Color(5,5,5)", "CallList(tile)", "PopMatrix"});
        }
    }
    add({"PushMatrix", "Translate(0,0,-100)", "Scale(50,50,1)", "Color(0,0,0)", "CallList(tile)", "PopMatrix"});
    EXPECT_EQ(gl::call_list(), expected);
    EXPECT_EQ(expected.size(), 900 * tile_calls + 6);
    EXPECT_EQ(gl::model_view_depth(), 1u);
    EXPECT_THAT(gl::errors(), testing::IsEmpty());
}

TEST_F(FlashBackground, OnlyTranslatesInDrawAndLeavesTheTranslationBehind) {
    wall.SetPos({1, 2, -3});
    wall.SetRot({10, 20, 30});
    gl::clear_log();
    wall.Draw();
    EXPECT_EQ(gl::call_list()[0], "Translate(1,2,-3)");
    EXPECT_EQ(gl::call_list()[1], "PushMatrix");
    EXPECT_EQ(gl::call_count(), 1 + 900 * tile_calls + 6);
    EXPECT_EQ(gl::model_view_depth(), 1u);
    wall.Draw();
    EXPECT_EQ(gl::model_view()[12], 2);
    EXPECT_EQ(gl::model_view()[13], 4);
    EXPECT_EQ(gl::model_view()[14], -6);
}

TEST_F(FlashBackground, StandsFullyTurnedWhichLooksFlat) {
    EXPECT_EQ(Turn(), turn(1));
    EXPECT_EQ(TurnAt(10), turn(1));
    auto const corner = gl::transform(gl::draws()[0].model_view, -50, -50, 0);
    EXPECT_NEAR(corner[0], -1400, 1e-3);
    EXPECT_NEAR(corner[1], -1500, 1e-3);
    EXPECT_NEAR(corner[2], 0, 1e-3);
}

struct Moment {
    char const* what;
    float t;
    double level;
};

TEST_F(FlashBackground, FlipsFromFlatToTurnedInHalfASecond) {
    wall.Blink(Type::Flip, 0);
    EXPECT_EQ(Turn(), turn(1)); // until the next update
    // clang-format off
    Moment const moments[] = {
        {"the first frame takes the start", 3,      0},
        {"a quarter",                       3.125f, 0.25},
        {"half",                            3.25f,  0.5},
        {"the end",                         3.5f,   1},
        {"over",                            4,      1},
    };
    // clang-format on
    for (Moment const& moment : moments) {
        SCOPED_TRACE(moment.what);
        EXPECT_EQ(TurnAt(moment.t), turn(moment.level));
    }
}

TEST_F(FlashBackground, FlipsBackFromTurnedToFlat) {
    wall.Blink(Type::Flip, 1);
    // clang-format off
    Moment const moments[] = {
        {"start",     3,      1},
        {"a quarter", 3.125f, 0.75},
        {"half",      3.25f,  0.5},
        {"the end",   3.5f,   0},
        {"over",      4,      0},
    };
    // clang-format on
    for (Moment const& moment : moments) {
        SCOPED_TRACE(moment.what);
        EXPECT_EQ(TurnAt(moment.t), turn(moment.level));
    }
}

TEST_F(FlashBackground, StopsExactlyAtTheEndOfAFlipThatAFrameOvershoots) {
    for (int const value : {0, 1}) {
        SCOPED_TRACE(testing::Message() << "value " << value);
        wall.Blink(Type::Flip, value);
        wall.UpdateLogic(state_at(1));
        EXPECT_EQ(TurnAt(1.9f), turn(value == 0 ? 1 : 0));
        EXPECT_EQ(TurnAt(1.1f), turn(value == 0 ? 1 : 0)); // idle
    }
}

TEST_F(FlashBackground, FlipsBackForTheValueOneOnly) {
    for (int const value : {-1, 2}) {
        wall.Blink(Type::Flip, value);
        EXPECT_EQ(TurnAt(1), turn(0));
    }
}

TEST_F(FlashBackground, StartsARunningFlipAgainFromItsOwnEnd) {
    wall.Blink(Type::Flip, 0);
    wall.UpdateLogic(state_at(1));
    EXPECT_EQ(TurnAt(1.25f), turn(0.5));
    wall.Blink(Type::Flip, 0);
    EXPECT_EQ(TurnAt(1.375f), turn(0));
    EXPECT_EQ(TurnAt(1.5f), turn(0.25));
    wall.Blink(Type::Flip, 1);
    EXPECT_EQ(TurnAt(1.625f), turn(1));
    EXPECT_EQ(TurnAt(1.75f), turn(0.75));
    EXPECT_EQ(TurnAt(2.125f), turn(0));
}

TEST_F(FlashBackground, TakesTheDurationThatItIsGiven) {
    wall.SetSpeed(4);
    wall.Blink(Type::Flip, 0);
    wall.UpdateLogic(state_at(0));
    EXPECT_EQ(TurnAt(1), turn(0.25));
    EXPECT_EQ(TurnAt(3.5f), turn(0.875));
}

TEST_F(FlashBackground, IsNotANumberForTheFirstFrameOfAFlipWithoutDuration) {
    for (int const value : {0, 1}) {
        SCOPED_TRACE(testing::Message() << "value " << value);
        wall.SetSpeed(0);
        wall.Blink(Type::Flip, value);
        EXPECT_THAT(TurnAt(2), HasSubstr("nan"));
        EXPECT_THAT(TurnAt(2), HasSubstr("nan")); // still at its start
        EXPECT_EQ(TurnAt(2.01f), turn(value == 0 ? 1 : 0));
        wall.SetSpeed(1);
        EXPECT_EQ(TurnAt(2.02f), turn(value == 0 ? 1 : 0)); // idle
    }
}

TEST_F(FlashBackground, SwapsTilesAndBackdrop) {
    wall.Blink(Type::Invert, 1);
    gl::clear_log();
    wall.InternalDraw();
    EXPECT_EQ(gl::call_list()[4], "Color(0,0,0)");
    EXPECT_EQ(gl::call_list()[900 * tile_calls + 3], "Color(1,1,1)");
}

TEST_F(FlashBackground, FlipsAndStrobesAtTheSameTime) {
    wall.Blink(Type::Flip, 0);
    wall.Blink(Type::Strobe, 1);
    EXPECT_EQ(TurnAt(0), turn(0));
    EXPECT_EQ(gl::call_list()[4], "Color(0,0,0)");
    EXPECT_EQ(TurnAt(0.25f), turn(0.5));
    EXPECT_EQ(gl::call_list()[4], "Color(1,1,1)");
}

} // namespace
