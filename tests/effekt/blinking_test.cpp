// SPDX-License-Identifier: MIT
// What the ten reacting effects have in common: colours, strobe, and being reached.

#include "effekt/blinker.h"
#include "tests/effekt/reacting_effects.h"

#include <algorithm>

using effect_test::all_kinds;
using effect_test::Reacting;
using effect_test::state_at;
using kore::BlinkerInterface;
using testing::ElementsAreArray;

namespace {

using Type = BlinkerInterface::BlinkerType;

class Blinking : public effect_test::ReactingTest {
protected:
    void SetUp() override { gl::reset(); }
};

/// The grey level that a call sets.
std::string issued(BlinkerInterface& effect, void (BlinkerInterface::*call)()) {
    gl::clear_log();
    (effect.*call)();
    return gl::calls();
}
std::string main_color(BlinkerInterface& effect) { return issued(effect, &BlinkerInterface::drawColor); }
std::string contrast(BlinkerInterface& effect) { return issued(effect, &BlinkerInterface::drawNegativeColor); }

std::string color(int level) {
    std::string const g = std::to_string(level);
    return "Color(" + g + "," + g + "," + g + ")";
}

constexpr char const* white = "Color(1,1,1)";
constexpr char const* black = "Color(0,0,0)";

TEST_P(Blinking, IsNamedAfterItsClass) { EXPECT_EQ(Make().entity->Name(), GetParam().name); }

TEST_P(Blinking, StartsWhiteAgainstBlack) {
    Reacting const made = Make();
    EXPECT_EQ(main_color(*made.blinker), white);
    EXPECT_EQ(contrast(*made.blinker), black);
}

TEST_P(Blinking, ContrastsBlackWithWhiteAndEveryOtherLevelWithBlack) {
    struct Row {
        int level;
        int contrast;
    };
    for (Row const& row : {Row{0, 1}, Row{1, 0}, Row{5, 0}, Row{-1, 0}}) {
        SCOPED_TRACE(testing::Message() << "level " << row.level);
        Reacting const made = Make();
        made.blinker->SetColor(row.level);
        EXPECT_EQ(main_color(*made.blinker), color(row.level));
        EXPECT_EQ(contrast(*made.blinker), color(row.contrast));
    }
}

TEST_P(Blinking, SwapsItsColoursByInversionOrStrobeButNotByBoth) {
    struct Row {
        bool inverted;
        bool flash; ///< the strobe's count is even and not 0
        bool swapped;
    };
    // clang-format off
    constexpr Row rows[] = {
        {false, false, false},
        {false, true,  true},
        {true,  false, true},
        {true,  true,  false},
    };
    // clang-format on
    for (int const level : {0, 1, 5}) {
        for (bool const inverted : {false, true}) {
            Reacting const made = Make();
            made.blinker->SetColor(level);
            made.blinker->Blink(Type::Invert, inverted ? 1 : 0);
            made.blinker->Blink(Type::Strobe, 3);
            for (int frame = 0, count = 7; frame < 9; ++frame) {
                SCOPED_TRACE(testing::Message()
                             << "level " << level << ", inverted " << inverted << ", strobe count " << count);
                bool const flash = count != 0 && count % 2 == 0;
                auto const row = std::find_if(std::begin(rows), std::end(rows),
                                              [&](Row const& r) { return r.inverted == inverted && r.flash == flash; });
                int const other = level == 0 ? 1 : 0;
                EXPECT_EQ(main_color(*made.blinker), color(row->swapped ? other : level));
                EXPECT_EQ(contrast(*made.blinker), color(row->swapped ? level : other));
                made.entity->UpdateLogic(state_at(static_cast<float>(frame)));
                if (GetParam().counts_down && count > 0) --count;
            }
        }
    }
}

TEST_P(Blinking, StrobesAsManyFramesAsAskedEachFollowedByANormalOne) {
    struct Row {
        int flashes;
        std::vector<int> levels; ///< of the main colour, from the frame after the event
    };
    // clang-format off
    Row const rows[] = {
        {0,  {1, 1, 1, 1}},
        {1,  {0, 1, 1, 1}},
        {2,  {0, 1, 0, 1, 1, 1}},
        {3,  {0, 1, 0, 1, 0, 1, 1, 1}},
        {-1, {1, 1, 1, 1}},
        {-9, {1, 1, 1, 1}},
    };
    // clang-format on
    for (Row const& row : rows) {
        SCOPED_TRACE(testing::Message() << row.flashes << " flashes");
        Reacting const made = Make();
        made.blinker->Blink(Type::Strobe, row.flashes);
        EXPECT_EQ(main_color(*made.blinker), white); // an odd count
        for (std::size_t frame = 0; frame < row.levels.size(); ++frame) {
            SCOPED_TRACE(testing::Message() << "frame " << frame);
            made.entity->UpdateLogic(state_at(static_cast<float>(frame)));
            int const level = GetParam().counts_down ? row.levels[frame] : 1;
            EXPECT_EQ(main_color(*made.blinker), color(level));
            EXPECT_EQ(contrast(*made.blinker), color(1 - level));
        }
    }
}

TEST_P(Blinking, RestartsItsStrobeWithEachEvent) {
    Reacting const made = Make();
    made.blinker->Blink(Type::Strobe, 9000);
    for (int frame = 0; frame < 7; ++frame) made.entity->UpdateLogic(state_at(0));
    made.blinker->Blink(Type::Strobe, 1); // 3
    made.entity->UpdateLogic(state_at(0));
    EXPECT_EQ(main_color(*made.blinker), GetParam().counts_down ? black : white);
    made.entity->UpdateLogic(state_at(0));
    made.entity->UpdateLogic(state_at(0));
    made.entity->UpdateLogic(state_at(0));
    EXPECT_EQ(main_color(*made.blinker), white);
}

TEST_P(Blinking, StaysInvertedUntilAnInvertOfAnyValueButOne) {
    for (int const value : {0, 2, -1}) {
        SCOPED_TRACE(testing::Message() << "value " << value);
        Reacting const made = Make();
        made.blinker->Blink(Type::Invert, 1);
        for (int frame = 0; frame < 5; ++frame) made.entity->UpdateLogic(state_at(0));
        EXPECT_EQ(main_color(*made.blinker), black);
        EXPECT_EQ(contrast(*made.blinker), white);
        made.blinker->Blink(Type::Invert, value);
        EXPECT_EQ(main_color(*made.blinker), white);
        EXPECT_EQ(contrast(*made.blinker), black);
    }
}

TEST_P(Blinking, ReportsItselfStartedFromItsFirstUpdateOn) {
    Reacting const made = Make();
    EXPECT_FALSE(made.blinker->BlinkerStarted());
    made.blinker->Blink(Type::Strobe, 1);
    EXPECT_FALSE(made.blinker->BlinkerStarted());
    made.entity->UpdateLogic(state_at(0));
    EXPECT_EQ(made.blinker->BlinkerStarted(), GetParam().starts);
}

TEST_P(Blinking, IsReachedByABlinkerOnceItHasStarted) {
    Reacting const made = Make();
    effect::Blinker blinker;
    blinker.Add(made.blinker);
    blinker.Update(Type::Invert, 1);
    EXPECT_EQ(main_color(*made.blinker), white);
    made.entity->UpdateLogic(state_at(0));
    blinker.Update(Type::Invert, 1);
    EXPECT_EQ(main_color(*made.blinker), GetParam().starts ? black : white);
}

TEST_P(Blinking, SetsAColourWithoutTouchingAnythingElse) {
    Reacting const made = Make();
    gl::clear_log();
    made.blinker->drawColor();
    made.blinker->drawNegativeColor();
    EXPECT_THAT(gl::call_list(), ElementsAreArray({white, black}));
}

INSTANTIATE_TEST_SUITE_P(Ten, Blinking, testing::ValuesIn(all_kinds()), effect_test::kind_name);

} // namespace
