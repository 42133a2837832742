// What the ten reacting effects have in common: colours, strobe, and who hears what.

#include "effekt/blinker.h"
#include "tests/effekt/reacting_effects.h"

#include <GL/gl.h>
#include <algorithm>

using effect_test::all_kinds;
using effect_test::Kind;
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

TEST_P(Blinking, IsAtFirstWhiteAgainstBlack) {
    Reacting const made = Make();
    EXPECT_EQ(main_color(*made.blinker), white);
    EXPECT_EQ(contrast(*made.blinker), black);
}

TEST_P(Blinking, ContrastsBlackWithWhiteAndEveryOtherLevelWithBlack) {
    struct Row {
        int level;
        int contrast;
    };
    for (Row const& row : {
             Row{0,  1},
             Row{1,  0},
             Row{5,  0},
             Row{-1, 0}
    }) {
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
    constexpr Row rows[] = {
        {false, false, false},
        {false, true,  true },
        {true,  false, true },
        {true,  true,  false}
    };
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
    Row const rows[] = {
        {0,  {1, 1, 1, 1}            },
        {1,  {0, 1, 1, 1}            },
        {2,  {0, 1, 0, 1, 1, 1}      },
        {3,  {0, 1, 0, 1, 0, 1, 1, 1}},
        {-1, {1, 1, 1, 1}            },
        {-9, {1, 1, 1, 1}            },
    };
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

TEST_P(Blinking, StartsItsStrobeAnewWithEachEvent) {
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

/// What it draws over three frames, as a checksum.
std::uint64_t picture(Reacting const& made) {
    gl::clear_log();
    float const times[] = {1.0f, 1.125f, 1.25f};
    for (float const t : times) {
        made.entity->UpdateLogic(state_at(t));
        made.entity->Draw();
    }
    return gl::checksum();
}

/// Which changes of state show in the picture of which effect.
class BlinkTypes : public effect_test::ReactingTest {
protected:
    template<typename Change>
    bool Shows(Change change) {
        gl::reset(gl::Logging::Sums);
        std::uint64_t const before = picture(Make());
        gl::reset(gl::Logging::Sums);
        Reacting const made = Make();
        change(*made.blinker);
        return picture(made) != before;
    }

    bool IsOneOf(std::initializer_list<char const*> names) {
        return std::any_of(names.begin(), names.end(), [](auto name) { return GetParam().name == name; });
    }
};

constexpr int values[] = {-1, 0, 1, 2};

TEST_P(BlinkTypes, InvertIsHeardByAll) {
    for (int const value : values) {
        SCOPED_TRACE(testing::Message() << "value " << value);
        EXPECT_EQ(Shows([&](auto& effect) { effect.Blink(Type::Invert, value); }), value == 1);
    }
}

TEST_P(BlinkTypes, StrobeIsHeardByAllWhoseUpdateCounts) {
    for (int const value : values) {
        SCOPED_TRACE(testing::Message() << "value " << value);
        EXPECT_EQ(Shows([&](auto& effect) { effect.Blink(Type::Strobe, value); }), value > 0 && GetParam().counts_down);
    }
}

TEST_P(BlinkTypes, WireframeShowsInThoseThatLookAtIt) {
    bool const shows = IsOneOf({"SimpleModel", "BrokenModel", "ShowModel"});
    for (int const value : values) {
        SCOPED_TRACE(testing::Message() << "value " << value);
        EXPECT_EQ(Shows([&](auto& effect) { effect.Blink(Type::Wireframe, value); }), shows && value != 1);
    }
    EXPECT_EQ(Shows([](auto& effect) { effect.DrawWireframe(false); }), shows);
    EXPECT_FALSE(Shows([](auto& effect) { effect.DrawWireframe(true); }));
    EXPECT_FALSE(Shows([](auto& effect) {
        effect.DrawWireframe(false);
        effect.Blink(Type::Wireframe, 1);
    }));
}

TEST_P(BlinkTypes, SolidShowsInTheSimpleModelAlone) {
    for (int const value : values) {
        SCOPED_TRACE(testing::Message() << "value " << value);
        EXPECT_EQ(Shows([&](auto& effect) { effect.Blink(Type::Solid, value); }),
                  IsOneOf({"SimpleModel"}) && value != 1);
    }
    EXPECT_EQ(Shows([](auto& effect) { effect.DrawSolid(false); }), IsOneOf({"SimpleModel", "BrokenModel"}));
    EXPECT_FALSE(Shows([](auto& effect) { effect.DrawSolid(true); }));
}

TEST_P(BlinkTypes, BreakShowsInTheBrokenModelWhateverItsValue) {
    for (int const value : values) {
        SCOPED_TRACE(testing::Message() << "value " << value);
        EXPECT_EQ(Shows([&](auto& effect) { effect.Blink(Type::Break, value); }), IsOneOf({"BrokenModel"}));
    }
}

TEST_P(BlinkTypes, FlipShowsInTheBackgroundWhateverItsValue) {
    for (int const value : values) {
        SCOPED_TRACE(testing::Message() << "value " << value);
        EXPECT_EQ(Shows([&](auto& effect) { effect.Blink(Type::Flip, value); }), IsOneOf({"FlashBackground"}));
    }
}

TEST_P(BlinkTypes, UnassignedTypesAreHeardByNobody) {
    for (int const number : {2, 5}) {
        for (int const value : values) {
            SCOPED_TRACE(testing::Message() << "type " << number << ", value " << value);
            EXPECT_FALSE(Shows([&](auto& effect) { effect.Blink(static_cast<Type>(number), value); }));
        }
    }
}

TEST(BlinkerInterface, KeepsTheNumbersOfItsTypes) {
    EXPECT_EQ(Type::Invert, 0);
    EXPECT_EQ(Type::Strobe, 1);
    EXPECT_EQ(Type::Wireframe, 3);
    EXPECT_EQ(Type::Break, 4);
    EXPECT_EQ(Type::Flip, 6);
    EXPECT_EQ(Type::Solid, 7);
}

/// Pushes and pops around a whole Draw.
class MatrixBalance : public effect_test::ReactingTest {};

TEST_P(MatrixBalance, LeavesTheStackAsItWasSaveWhereThatIsMeant) {
    std::string const& name = GetParam().name;
    int const lost = name == "PulseWire" ? 2 : name == "GyroFuck" ? 1 : 0;
    Reacting const made = Make();
    made.entity->UpdateLogic(state_at(1));
    for (int i = 0; i < 4; ++i) glPushMatrix();
    std::size_t const before = gl::model_view_depth();
    gl::clear_log();
    made.entity->Draw();
    EXPECT_EQ(static_cast<int>(before) - static_cast<int>(gl::model_view_depth()), lost);
    EXPECT_FALSE(gl::inside_primitive());
    if (lost == 0) {
        EXPECT_THAT(gl::errors(), testing::IsEmpty());
    }
}

std::string kind_name(testing::TestParamInfo<Kind> const& info) { return info.param.name; }

INSTANTIATE_TEST_SUITE_P(Ten, Blinking, testing::ValuesIn(all_kinds()), kind_name);
INSTANTIATE_TEST_SUITE_P(Ten, BlinkTypes, testing::ValuesIn(all_kinds()), kind_name);
INSTANTIATE_TEST_SUITE_P(Ten, MatrixBalance, testing::ValuesIn(all_kinds()), kind_name);

} // namespace
