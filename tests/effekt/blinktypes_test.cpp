// SPDX-License-Identifier: MIT
// Which events and flags each of the ten reacting effects responds to, and what it does to the matrix stack.

#include "tests/effekt/reacting_effects.h"

#include <GL/gl.h>
#include <algorithm>

using effect_test::all_kinds;
using effect_test::Reacting;
using effect_test::state_at;

namespace {

using Type = kore::BlinkerInterface::BlinkerType;

/// A checksum of what it draws over three frames.
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

TEST_P(BlinkTypes, InvertReachesAll) {
    for (int const value : values) {
        SCOPED_TRACE(testing::Message() << "value " << value);
        EXPECT_EQ(Shows([&](auto& effect) { effect.Blink(Type::Invert, value); }), value == 1);
    }
}

TEST_P(BlinkTypes, StrobeReachesAllWhoseUpdateCountsDown) {
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

TEST_P(BlinkTypes, UnassignedTypesChangeNothing) {
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

TEST_P(MatrixBalance, LeavesTheStackUnchangedExceptWhereIntended) {
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

INSTANTIATE_TEST_SUITE_P(Ten, BlinkTypes, testing::ValuesIn(all_kinds()), effect_test::kind_name);
INSTANTIATE_TEST_SUITE_P(Ten, MatrixBalance, testing::ValuesIn(all_kinds()), effect_test::kind_name);

} // namespace
