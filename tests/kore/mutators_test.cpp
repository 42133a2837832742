// SPDX-License-Identifier: MIT
#include "kore/routepositioner.h"
#include "kore/staticpositioner.h"
#include "kore/staticrotator.h"
#include "tests/kore/probes.h"

#include <gtest/gtest.h>

using namespace kore;
using probes::at_time;
using probes::Is;
using probes::IsExactly;
using probes::Thing;

namespace {

class MutatorTest : public testing::Test {
protected:
    std::shared_ptr<kore::Entity> entity = std::make_shared<Thing>();

    Vector3<float> RotationAt(Mutator& mutator, float t) {
        mutator.Do(entity, at_time(t));
        return entity->GetRot();
    }
    Vector3<float> PositionAt(Mutator& mutator, float t) {
        mutator.Do(entity, at_time(t));
        return entity->GetPos();
    }
};

class StaticRotator : public MutatorTest {
protected:
    kore::StaticRotator rotator;
};

TEST_F(StaticRotator, HoldsAFixedRotation) {
    rotator.SetRot({10, 20, 30});
    for (float const t : {0.0f, 1.0f, 100.0f}) EXPECT_THAT(RotationAt(rotator, t), IsExactly(10, 20, 30));
    EXPECT_STREQ(rotator.Name(), "StaticRotator");
}

TEST_F(StaticRotator, IsAtZeroAtFirst) {
    entity->SetRot({1, 2, 3});
    EXPECT_THAT(RotationAt(rotator, 5), IsExactly(0, 0, 0));
}

TEST_F(StaticRotator, TurnsFromZeroWhenOnlyASpinWasGiven) {
    rotator.SetSpin({30, 90, -50});
    EXPECT_THAT(RotationAt(rotator, 0), IsExactly(0, 0, 0));
    EXPECT_THAT(RotationAt(rotator, 2), IsExactly(60, 180, -100));
}

TEST_F(StaticRotator, MeasuresItsSpinFromItsFirstFrame) {
    rotator.SetRot({1, 2, 3});
    rotator.SetSpin({10, 0, 0});
    EXPECT_THAT(RotationAt(rotator, 14.5f), IsExactly(1, 2, 3));
    EXPECT_THAT(RotationAt(rotator, 15.5f), IsExactly(11, 2, 3));
}

TEST_F(StaticRotator, LatchesItsFirstFrameEvenWhileItDoesNotSpin) {
    RotationAt(rotator, 4);
    rotator.SetSpin({10, 0, 0});
    EXPECT_THAT(RotationAt(rotator, 6), IsExactly(20, 0, 0));
}

TEST_F(StaticRotator, TurnsBackwardsBeforeItsFirstFrame) {
    rotator.SetSpin({10, 0, 0});
    RotationAt(rotator, 6);
    EXPECT_THAT(RotationAt(rotator, 4), IsExactly(-20, 0, 0));
}

TEST_F(StaticRotator, SpinningByZeroIsHoldingStill) {
    rotator.SetRot({1, 2, 3});
    rotator.SetSpin({0, 0, 0});
    RotationAt(rotator, 0);
    EXPECT_THAT(RotationAt(rotator, 9), IsExactly(1, 2, 3));
}

TEST_F(StaticRotator, LeavesThePositionAlone) {
    entity->SetPos({4, 5, 6});
    rotator.SetSpin({10, 0, 0});
    EXPECT_THAT(PositionAt(rotator, 1), IsExactly(4, 5, 6));
}

class StaticPositioner : public MutatorTest {
protected:
    kore::StaticPositioner positioner;
};

TEST_F(StaticPositioner, HoldsAnEntityAtOnePosition) {
    entity->SetPos({9, 9, 9});
    EXPECT_THAT(PositionAt(positioner, 0), IsExactly(0, 0, 0));
    positioner.SetPos({1, 2, 3});
    EXPECT_THAT(PositionAt(positioner, 0), IsExactly(1, 2, 3));
    entity->SetPos({9, 9, 9});
    EXPECT_THAT(PositionAt(positioner, -5), IsExactly(1, 2, 3));
    EXPECT_STREQ(positioner.Name(), "StaticPositioner");
}

class RoutePositioner : public MutatorTest {
protected:
    using Route = kore::RoutePositioner;
    Route route;
    static constexpr float a = 8;
    static constexpr float b = 24;
    static Vector3<float> At(float x) { return {x, 0, 0}; }
};

TEST_F(RoutePositioner, MovesOnAStraightLineToItsTargetAndThenLetsGo) {
    route.AddPos(Route::JUMP, 0, 0, {8, 0, -8});
    route.AddPos(Route::LINEAR, 0, 16, {24, 32, 0});
    EXPECT_THAT(PositionAt(route, 0), IsExactly(8, 0, -8));
    EXPECT_THAT(PositionAt(route, 4), IsExactly(12, 8, -6)); // A + (B - A) x 0.25
    EXPECT_THAT(PositionAt(route, 12), IsExactly(20, 24, -2));
    EXPECT_THAT(PositionAt(route, 16), IsExactly(24, 32, 0));
    entity->SetPos({9, 9, 9});
    EXPECT_THAT(PositionAt(route, 17), IsExactly(9, 9, 9));
    EXPECT_STREQ(route.Name(), "RoutePositioner");
}

TEST_F(RoutePositioner, EndsExactlyAtItsTarget) {
    // 16777216 + (1 - 16777216) x 1 is 0 in float; the target is taken and not the sum.
    route.AddPos(Route::JUMP, 0, 0, At(16777216));
    route.AddPos(Route::LINEAR, 0, 1, At(1));
    PositionAt(route, 0);
    EXPECT_EQ(PositionAt(route, 1).x, 1);
}

TEST_F(RoutePositioner, WithoutStepsLeavesTheEntityAlone) {
    entity->SetPos({9, 9, 9});
    EXPECT_THAT(PositionAt(route, 0), IsExactly(9, 9, 9));
}

TEST_F(RoutePositioner, HoldsTheEntityAtItsFirstTargetBeforeItStarts) {
    entity->SetPos({9, 9, 9});
    route.AddPos(Route::JUMP, 4, 0, At(a));
    route.AddPos(Route::JUMP, 8, 0, At(b));
    EXPECT_EQ(PositionAt(route, 0).x, a);
    EXPECT_EQ(PositionAt(route, 5).x, a);
    EXPECT_EQ(PositionAt(route, 7.99f).x, a);
    EXPECT_EQ(PositionAt(route, 8).x, b);
}

TEST_F(RoutePositioner, MovesAFirstLinearStepFromItsTargetToItself) {
    route.AddPos(Route::LINEAR, 0, 4, At(a));
    EXPECT_EQ(PositionAt(route, 1).x, a);
    EXPECT_EQ(PositionAt(route, 3).x, a);
}

TEST_F(RoutePositioner, CompletesALinearStepOfNoLengthAtItsStart) {
    route.AddPos(Route::JUMP, 0, 0, At(a));
    route.AddPos(Route::LINEAR, 4, 0, At(b));
    PositionAt(route, 0);
    EXPECT_EQ(PositionAt(route, 3.99f).x, a);
    EXPECT_EQ(PositionAt(route, 4).x, b);
}

TEST_F(RoutePositioner, WaitsBetweenTwoSteps) {
    route.AddPos(Route::JUMP, 0, 0, At(a));
    route.AddPos(Route::LINEAR, 4, 4, At(b));
    PositionAt(route, 0);
    EXPECT_EQ(PositionAt(route, 2).x, a);
    EXPECT_EQ(PositionAt(route, 6).x, 16);
}

TEST_F(RoutePositioner, CompletesOneStepAFrameAtMost) {
    for (int i = 0; i < 4; ++i) {
        route.AddPos(i % 2 ? Route::LINEAR : Route::JUMP, static_cast<float>(i), 0.5f, At(static_cast<float>(10 + i)));
    }
    for (int i = 0; i < 4; ++i) EXPECT_EQ(PositionAt(route, 100).x, static_cast<float>(10 + i));
    entity->SetPos({9, 9, 9});
    EXPECT_EQ(PositionAt(route, 100).x, 9);
}

TEST_F(RoutePositioner, StaysForEverAtAStepOfAnUnknownType) {
    route.AddPos(Route::JUMP, 0, 0, At(a));
    route.AddPos(static_cast<Route::route_transition_t>(2), 1, 1, At(b));
    route.AddPos(Route::JUMP, 2, 0, At(b));
    for (float const t : {0.0f, 1.5f, 3.0f, 1000.0f}) {
        entity->SetPos({9, 9, 9});
        EXPECT_EQ(PositionAt(route, t).x, a) << t;
    }
}

TEST_F(RoutePositioner, RunsOnWithStepsThatAreAddedAfterItsEnd) {
    route.AddPos(Route::JUMP, 0, 0, At(a));
    PositionAt(route, 0);
    entity->SetPos({9, 9, 9});
    EXPECT_EQ(PositionAt(route, 1).x, 9);
    route.AddPos(Route::LINEAR, 2, 2, At(b));
    EXPECT_EQ(PositionAt(route, 3).x, 16);
}

TEST_F(RoutePositioner, DoesNotReplay) {
    route.AddPos(Route::JUMP, 0, 0, At(a));
    route.AddPos(Route::JUMP, 4, 0, At(b));
    PositionAt(route, 0);
    PositionAt(route, 4);
    EXPECT_EQ(PositionAt(route, 0).x, b);
}

} // namespace
