// SPDX-License-Identifier: MIT
#include "kore/smoothcam.h"
#include "kore/smoothpositioner.h"
#include "tests/kore/probes.h"

#include <gtest/gtest.h>

using namespace kore;
using probes::at_time;
using probes::Is;
using probes::IsExactly;

namespace {

/// What a route sets at a time: the position of an entity, or the point that a camera looks at.
template<typename Route>
struct Subject;

template<>
struct Subject<SmoothPositioner> {
    static constexpr char const* name = "SmoothPositioner";
    std::shared_ptr<kore::Entity> entity = std::make_shared<probes::Thing>();
    Vector3<float> Get() { return entity->GetPos(); }
    void Set(Vector3<float> const& v) { entity->SetPos(v); }
};

template<>
struct Subject<SmoothCam> {
    static constexpr char const* name = "SmoothCam";
    std::shared_ptr<kore::Entity> entity = std::make_shared<effect::Camera>();
    Vector3<float> Get() {
        gl::reset();
        entity->Draw();
        double x = 0;
        double y = 0;
        double z = 0;
        std::sscanf(gl::calls().c_str(), "LookAt(0,0,0,%lf,%lf,%lf,0,1,0)", &x, &y, &z);
        return {static_cast<float>(x), static_cast<float>(y), static_cast<float>(z)};
    }
    void Set(Vector3<float> const& v) { dynamic_cast<effect::Camera&>(*entity).SetLookPos(v); }
};

template<typename R>
class SmoothRoutes : public testing::Test {
protected:
    using Route = R;
    Vector3<float> At(float t) {
        route.Do(subject.entity, at_time(t));
        return subject.Get();
    }
    Subject<R> subject;
    R route;
    Vector3<float> const a{1, 2, 3};
    Vector3<float> const b{8, 0, 0};
    Vector3<float> const c{24, 16, 8};
};

using Routes = testing::Types<SmoothPositioner, SmoothCam>;
TYPED_TEST_SUITE(SmoothRoutes, Routes);

TYPED_TEST(SmoothRoutes, HasAName) { EXPECT_STREQ(this->route.Name(), Subject<TypeParam>::name); }

TYPED_TEST(SmoothRoutes, GlidesThroughTheWayPointsOfARunAndSettlesOnTheLast) {
    this->route.AddPos(TypeParam::JUMP, 0, 0, this->a);
    this->route.AddPos(TypeParam::SMOOTH, 8, 4, this->b);
    this->route.AddPos(TypeParam::SMOOTH, 99, 4, this->c); // its start is ignored
    EXPECT_THAT(this->At(0), IsExactly(1, 2, 3));
    EXPECT_THAT(this->At(4), IsExactly(1, 2, 3));
    EXPECT_THAT(this->At(8), IsExactly(8, 0, 0));
    // A quarter of the step is half the first segment: -1/16 B + 9/16 B + 9/16 C - 1/16 C.
    EXPECT_THAT(this->At(10), Is(16, 8, 4));
    EXPECT_THAT(this->At(12), IsExactly(24, 16, 8));
    EXPECT_THAT(this->At(14), Is(25, 17, 8.5f)); // a sixteenth of the way beyond C
    EXPECT_THAT(this->At(16), IsExactly(24, 16, 8));
    this->subject.Set({9, 9, 9});
    EXPECT_THAT(this->At(17), IsExactly(9, 9, 9)); // finished
}

TYPED_TEST(SmoothRoutes, GivesEveryWayPointAnEqualShareWhateverItsOwnLength) {
    this->route.AddPos(TypeParam::JUMP, 0, 0, this->a);
    this->route.AddPos(TypeParam::SMOOTH, 8, 7, this->b);
    this->route.AddPos(TypeParam::SMOOTH, 15, 1, this->c);
    this->At(0);
    EXPECT_THAT(this->At(12), IsExactly(24, 16, 8));
}

TYPED_TEST(SmoothRoutes, StartsANewGlideAfterAJump) {
    this->route.AddPos(TypeParam::SMOOTH, 0, 4, this->b);
    this->route.AddPos(TypeParam::JUMP, 4, 0, this->a);
    this->route.AddPos(TypeParam::SMOOTH, 8, 4, this->c);
    this->At(4);                                    // the first glide ends
    EXPECT_THAT(this->At(4), IsExactly(1, 2, 3));   // one step a frame
    EXPECT_THAT(this->At(7), IsExactly(1, 2, 3));   // waits for its own start
    EXPECT_THAT(this->At(8), IsExactly(24, 16, 8)); // one way point: there at once
}

TYPED_TEST(SmoothRoutes, HoldsTheOriginBeforeAFirstGlide) {
    this->subject.Set({9, 9, 9});
    this->route.AddPos(TypeParam::SMOOTH, 4, 4, this->b);
    EXPECT_THAT(this->At(0), IsExactly(0, 0, 0));
    EXPECT_THAT(this->At(4), IsExactly(8, 0, 0));
}

TYPED_TEST(SmoothRoutes, CompletesOneStepAFrameAtMost) {
    this->route.AddPos(TypeParam::JUMP, 0, 0, this->a);
    this->route.AddPos(TypeParam::JUMP, 1, 0, this->b);
    this->route.AddPos(TypeParam::SMOOTH, 2, 1, this->c);
    EXPECT_THAT(this->At(100), IsExactly(1, 2, 3));
    EXPECT_THAT(this->At(100), IsExactly(8, 0, 0));
    EXPECT_THAT(this->At(100), IsExactly(24, 16, 8));
    this->subject.Set({9, 9, 9});
    EXPECT_THAT(this->At(100), IsExactly(9, 9, 9));
}

TYPED_TEST(SmoothRoutes, WithoutStepsTouchesNothing) {
    this->subject.Set({9, 9, 9});
    EXPECT_THAT(this->At(0), IsExactly(9, 9, 9));
}

TYPED_TEST(SmoothRoutes, DoesNotReplay) {
    this->route.AddPos(TypeParam::JUMP, 0, 0, this->a);
    this->route.AddPos(TypeParam::JUMP, 4, 0, this->b);
    this->At(0);
    this->At(4);
    EXPECT_THAT(this->At(0), IsExactly(8, 0, 0));
}

TEST(SmoothCam, MovesTheLookPointAndNotTheCamera) {
    std::shared_ptr<kore::Entity> camera = std::make_shared<effect::Camera>();
    camera->SetPos({4, 5, 6});
    kore::SmoothCam route;
    route.AddPos(kore::SmoothCam::JUMP, 0, 0, {1, 2, 3});
    route.Do(camera, at_time(0));
    EXPECT_THAT(camera->GetPos(), IsExactly(4, 5, 6));
}

} // namespace
