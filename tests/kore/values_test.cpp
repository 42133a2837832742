// SPDX-License-Identifier: MIT
#include "kore/color.h"
#include "kore/perspective.h"
#include "kore/statedata.h"
#include "kore/vector.h"
#include "tests/kore/probes.h"

#include <cmath>
#include <cstring>
#include <gtest/gtest.h>

using namespace kore;
using probes::IsExactly;

namespace {

TEST(Vector3, AddsSubtractsAndScalesByComponent) {
    Vector3<float> const a(1, 2, 3);
    Vector3<float> const b(10, 20, 30);
    EXPECT_THAT(a + b, IsExactly(11, 22, 33));
    EXPECT_THAT(b - a, IsExactly(9, 18, 27));
    EXPECT_THAT(a * 0.5f, IsExactly(0.5f, 1, 1.5f));
    Vector3<float> c = a;
    EXPECT_THAT((c += b) -= a, IsExactly(10, 20, 30));
    EXPECT_THAT(c, IsExactly(10, 20, 30));
}

TEST(Vector3, LiesInMemoryAsXThenYThenZ) {
    Vector3<float> const v(1, 2, 3);
    float array[3];
    static_assert(sizeof v == sizeof array);
    std::memcpy(array, &v, sizeof array);
    EXPECT_THAT(array, testing::ElementsAre(1, 2, 3));
}

TEST(Color, LiesInMemoryAsRedGreenBlueAlpha) {
    Color<float> const c(0.1f, 0.2f, 0.3f, 0.4f);
    float array[4];
    static_assert(sizeof c == sizeof array);
    std::memcpy(array, &c, sizeof array);
    EXPECT_THAT(array, testing::ElementsAre(0.1f, 0.2f, 0.3f, 0.4f));
}

TEST(StateData, StartsBeforeTheFirstBeat) {
    StateData const state;
    EXPECT_EQ(state.time, 0);
    EXPECT_EQ(state.beat_count, -1);
    EXPECT_FALSE(state.new_beat);
    EXPECT_EQ(state.fps, 0);
}

TEST(Brightness, WeighsTheSquaredComponentsAndTruncates) {
    struct {
        int r, g, b, brightness;
        // clang-format off
    } const rows[] = {
        {255, 255, 255, 255}, //
        {255, 0,   0,   125}, // sqrt(0.241) x 255 = 125.2
        {0,   255, 0,   211}, // sqrt(0.691) x 255 = 211.97
        {0,   0,   255, 66},  // sqrt(0.068) x 255 = 66.5
        {0,   0,   0,   0},   //
        {128, 64,  32,  82},  // sqrt(3948.5 + 2830.3 + 69.6) = 82.76
    };
    // clang-format on
    for (auto const& row : rows) {
        SCOPED_TRACE(testing::Message() << row.r << ' ' << row.g << ' ' << row.b);
        EXPECT_EQ(RGB_brightness(row.r, row.g, row.b), row.brightness);
    }
}

TEST(Luma, IsTheRootOfTheWeightedSumOfTheComponentsThemselves) {
    EXPECT_EQ(RGB_luma(255, 255, 255), 15); // sqrt(255) = 15.97
    EXPECT_EQ(RGB_luma(0, 0, 0), 0);
    EXPECT_EQ(RGB_luma(255, 0, 0), 8);  // sqrt(76.2) = 8.73
    EXPECT_EQ(RGB_luma(0, 255, 0), 12); // sqrt(149.7) = 12.23
    EXPECT_EQ(RGB_luma(0, 0, 255), 5);  // sqrt(29.07) = 5.39
}

TEST(Perspective, PiIsTwoUnitsInTheLastPlaceAboveTheNearestDouble) {
    EXPECT_EQ(kore::PI, std::nextafter(std::nextafter(3.14159265358979323846, 4), 4));
}

TEST(Perspective, Of90DegreesIsTheUnitFrustum) {
    gl::reset();
    glMatrixMode(GL_PROJECTION);
    gl::clear_log();
    setPerspective(90, 1, 1, 2000);
    EXPECT_EQ(gl::calls(), "Frustum(-1,1,-1,1,1,2000)");
    // The edge of the field of view lies on the edge of the clip volume: x / w = 1.
    gl::Matrix const& m = gl::projection();
    EXPECT_NEAR(m[0], 1, 1e-12);
    EXPECT_NEAR(m[5], 1, 1e-12);
}

TEST(Perspective, StretchesByTheAspectAndScalesWithTheNearPlane) {
    gl::reset();
    setPerspective(90, 2, 10, 100);
    EXPECT_EQ(gl::calls(), "Frustum(-20,20,-10,10,10,100)");
}

} // namespace
