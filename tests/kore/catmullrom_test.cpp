// SPDX-License-Identifier: MIT
#include "kore/catmullrom.h"
#include "tests/kore/probes.h"

#include <gtest/gtest.h>

using kore::Vector3;
using probes::Is;
using probes::IsExactly;

namespace {

class CatmullRom : public testing::Test {
protected:
    void Fill(int count) {
        for (int i = 0; i < count; ++i) spline.AddSplinePoint(points[i]);
    }
    // clang-format off
    Vector3<float> const points[4] = {
        {0,  0,  0},
        {8,  4,  0},
        {16, -4, 2},
        {40, 0,  100},
    };
    // clang-format on
    kore::CatmullRom spline;
};

TEST_F(CatmullRom, HasAName) { EXPECT_STREQ(spline.Name(), "CatmullRom"); }

TEST_F(CatmullRom, WithOnePointIsThatPointEverywhere) {
    spline.AddSplinePoint({3, 5, 7});
    for (float const t : {-1.0f, 0.0f, 0.3f, 1.0f, 2.0f}) {
        SCOPED_TRACE(t);
        EXPECT_THAT(spline.GetSplinePoint(t), Is(3, 5, 7));
    }
}

TEST_F(CatmullRom, PassesThroughPointIOfNAtIOverN) {
    Fill(4);
    EXPECT_EQ(spline.PointCount(), 4);
    EXPECT_THAT(spline.GetSplinePoint(0), IsExactly(0, 0, 0));
    EXPECT_THAT(spline.GetSplinePoint(0.25f), IsExactly(8, 4, 0));
    EXPECT_THAT(spline.GetSplinePoint(0.5f), IsExactly(16, -4, 2));
    EXPECT_THAT(spline.GetSplinePoint(0.75f), IsExactly(40, 0, 100));
    EXPECT_THAT(spline.GetSplinePoint(1), IsExactly(40, 0, 100));
}

TEST_F(CatmullRom, UsesItsFirstPointTwiceInTheFirstSegment) {
    Fill(4);
    Vector3<float> const p = spline.GetSplinePoint(0.125f);
    Vector3<float> const q = kore::CatmullRom::Solve(0.5f, points[0], points[0], points[1], points[2]);
    EXPECT_THAT(p, IsExactly(q.x, q.y, q.z));
    EXPECT_THAT(p, Is(3.5f, 2.5f, -0.125f)); // -1/16, 9/16, 9/16, -1/16
}

TEST_F(CatmullRom, SettlesWithASmallBulgeInItsLastSegment) {
    Fill(4);
    Vector3<float> const p = spline.GetSplinePoint(0.875f);
    Vector3<float> const q = kore::CatmullRom::Solve(0.5f, points[2], points[3], points[3], points[3]);
    EXPECT_THAT(p, IsExactly(q.x, q.y, q.z));
    EXPECT_THAT(p, Is(41.5f, 0.25f, 106.125f)); // beyond D by a sixteenth of the way from C
}

TEST_F(CatmullRom, ExtrapolatesOutsideTheRange) {
    Fill(4);
    struct {
        float t, u;
        int p[4];
    } const rows[] = {
        {-0.05f, -0.2f, {0, 0, 1, 2}},  // truncated towards segment 0
        {-0.375f, -0.5f, {0, 0, 0, 1}}, // segment -1: its points are clamped one by one
        {1.125f, 0.5f, {3, 3, 3, 3}},
    };
    for (auto const& row : rows) {
        SCOPED_TRACE(row.t);
        Vector3<float> const expected =
            kore::CatmullRom::Solve(row.u, points[row.p[0]], points[row.p[1]], points[row.p[2]], points[row.p[3]]);
        EXPECT_THAT(spline.GetSplinePoint(row.t), Is(expected.x, expected.y, expected.z));
    }
    EXPECT_LT(spline.GetSplinePoint(-0.05f).x, 0);
}

TEST_F(CatmullRom, MovesTheParametersOfEarlierPointsWhenOneIsAdded) {
    Fill(2);
    EXPECT_THAT(spline.GetSplinePoint(0.5f), IsExactly(8, 4, 0));
    spline.AddSplinePoint(points[2]);
    spline.AddSplinePoint(points[3]);
    EXPECT_THAT(spline.GetSplinePoint(0.25f), IsExactly(8, 4, 0));
    EXPECT_THAT(spline.GetSplinePoint(0.5f), IsExactly(16, -4, 2));
}

TEST_F(CatmullRom, HandsOutItsPointsByReference) {
    Fill(2);
    spline.GetPoint(1) = {1, 2, 3};
    EXPECT_THAT(spline.GetSplinePoint(0.5f), IsExactly(1, 2, 3));
}

TEST_F(CatmullRom, BlendsFourPointsWithTheUniformBasisOfTensionOneHalf) {
    Vector3<float> const e[4] = {
        {1, 0, 0},
        {0, 1, 0},
        {0, 0, 1},
        {0, 0, 0},
    };
    EXPECT_THAT(kore::CatmullRom::Solve(0, e[0], e[1], e[2], e[3]), IsExactly(0, 1, 0));
    EXPECT_THAT(kore::CatmullRom::Solve(1, e[0], e[1], e[2], e[3]), IsExactly(0, 0, 1));
    EXPECT_THAT(kore::CatmullRom::Solve(0.5f, e[0], e[1], e[2], e[3]), IsExactly(-0.0625f, 0.5625f, 0.5625f));
    EXPECT_THAT(kore::CatmullRom::Solve(0.25f, e[0], e[1], e[2], e[3]), IsExactly(-0.0703125f, 0.8671875f, 0.2265625f));
    EXPECT_EQ(kore::CatmullRom::Solve(0.25f, e[3], e[3], e[3], e[0]).x, -0.0234375f);
}

} // namespace
