// SPDX-License-Identifier: MIT
// The calm mode of the reacting effects: a strobe is a cut that is held.

#include "tests/effekt/reacting_effects.h"
#include "tests/support/withlook.h"

using effect_test::all_kinds;
using effect_test::Reacting;
using effect_test::state_at;
using Type = kore::BlinkerInterface::BlinkerType;

namespace {

constexpr effect::Look calm{.calm = true};

class CalmBlinking : public effect_test::ReactingTest {
protected:
    /// Whether an effect shows its two colours swapped.
    static bool Swapped(Reacting const& made) {
        gl::reset();
        made.blinker->drawColor();
        made.blinker->drawNegativeColor();
        bool const swapped = gl::calls() == "Color(0,0,0) Color(1,1,1)";
        EXPECT_TRUE(swapped || gl::calls() == "Color(1,1,1) Color(0,0,0)") << gl::calls();
        return swapped;
    }

    static void Play(Reacting const& made, int frames) {
        for (int frame = 0; frame < frames; ++frame) made.entity->UpdateLogic(state_at(static_cast<float>(frame) / 60));
    }

    support::WithLook const look{calm};
};

TEST_P(CalmBlinking, HoldsACutUntilTheNextEventOfAnyType) {
    for (Type const next : {Type::Strobe, Type::Invert, Type::Wireframe, Type::Break, Type::Flip, Type::Solid}) {
        SCOPED_TRACE(next);
        Reacting const made = Make();
        EXPECT_FALSE(Swapped(made));
        made.blinker->Blink(Type::Strobe, 2);
        EXPECT_TRUE(Swapped(made));
        for (int frame = 0; frame < 20; ++frame) {
            Play(made, 1);
            EXPECT_TRUE(Swapped(made));
        }
        made.blinker->Blink(next, next == Type::Strobe ? 2 : 0);
        EXPECT_FALSE(Swapped(made));
        Play(made, 20);
        EXPECT_FALSE(Swapped(made));
    }
}

TEST_P(CalmBlinking, CutsAgainWithTheStrobeAfterTheNext) {
    Reacting const made = Make();
    for (bool const swapped : {true, false, true, false}) {
        made.blinker->Blink(Type::Strobe, 9000);
        Play(made, 3);
        EXPECT_EQ(Swapped(made), swapped);
    }
}

TEST_P(CalmBlinking, TakesAStrobeWithoutFlashesForNoCut) {
    for (int const flashes : {0, -1}) {
        Reacting const made = Make();
        made.blinker->Blink(Type::Strobe, flashes);
        EXPECT_FALSE(Swapped(made));
        made.blinker->Blink(Type::Strobe, 1);
        made.blinker->Blink(Type::Strobe, flashes);
        EXPECT_FALSE(Swapped(made));
    }
}

TEST_P(CalmBlinking, StaysInvertedAndCutsBackToNormal) {
    Reacting const made = Make();
    made.blinker->Blink(Type::Invert, 1);
    Play(made, 3);
    EXPECT_TRUE(Swapped(made));
    made.blinker->Blink(Type::Strobe, 1);
    EXPECT_FALSE(Swapped(made));
}

INSTANTIATE_TEST_SUITE_P(Ten, CalmBlinking, testing::ValuesIn(all_kinds()), effect_test::kind_name);

} // namespace
