// SPDX-License-Identifier: MIT
#include "tools/rehearse/flycamera.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using Vector = kore::Vector3<float>;

MATCHER_P3(IsNear, x, y, z, "") {
    return std::abs(arg.x - static_cast<float>(x)) < 1e-3f && std::abs(arg.y - static_cast<float>(y)) < 1e-3f &&
           std::abs(arg.z - static_cast<float>(z)) < 1e-3f;
}

FlyCamera camera_at(Vector const& eye, Vector const& look) {
    FlyCamera camera;
    camera.StartAt(eye, look);
    return camera;
}

constexpr float quarter = 3.14159265f / 2 / 0.004f; // pixels

} // namespace

TEST(FlyCamera, TakesThePlaceOfAnother) {
    for (Vector const& look : {Vector{3, 4, 5}, Vector{-7, 0, 31}, Vector{0, -2, -20}}) {
        FlyCamera const camera = camera_at({0, 0, 31}, look);
        EXPECT_THAT(camera.Eye(), IsNear(0, 0, 31));
        EXPECT_THAT(camera.Look(), IsNear(look.x, look.y, look.z));
    }
}

TEST(FlyCamera, TurnsToTheRightWithTheMouse) {
    FlyCamera camera = camera_at({0, 0, 10}, {0, 0, 0});
    camera.Turn(quarter, 0);
    EXPECT_THAT(camera.Look(), IsNear(10, 0, 10));
    EXPECT_THAT(camera.Eye(), IsNear(0, 0, 10));
}

TEST(FlyCamera, LooksDownWithTheMouseAndNeverOverItself) {
    FlyCamera camera = camera_at({0, 0, 10}, {0, 0, 0});
    camera.Turn(0, quarter / 2);
    EXPECT_THAT(camera.Look(), IsNear(0, -7.0711, 2.9289));
    camera.Turn(0, 10 * quarter);
    EXPECT_LT(camera.Look().z, 10);
    EXPECT_LT(camera.Look().y, -9.9f);
}

TEST(FlyCamera, GoesWhereItLooks) {
    FlyCamera camera = camera_at({0, 0, 10}, {0, 0, 0});
    camera.Go(2);
    EXPECT_THAT(camera.Eye(), IsNear(0, 0, 8));
    EXPECT_THAT(camera.Look(), IsNear(0, 0, -2));
}

TEST(FlyCamera, IsPulledSidewaysAndUp) {
    FlyCamera camera = camera_at({0, 0, 10}, {0, 0, 0});
    camera.Pull(100, 50);
    EXPECT_THAT(camera.Eye(), IsNear(-2, 1, 10));
    EXPECT_THAT(camera.Look(), IsNear(-2, 1, 0));
}

TEST(FlyCamera, PrintsLinesForAScene) {
    EXPECT_EQ(camera_at({1, 2.5, 10}, {1, 2.5, 0}).Lines(),
              "camera->SetPos({1.000f, 2.500f, 10.000f});\ncamera->SetLookPos({1.000f, 2.500f, 0.000f});");
}

TEST(FlyCamera, MovesAFreeView) {
    DebugCamera view;
    camera_at({1, 2, 3}, {1, 2, -3}).Apply(view);
    EXPECT_THAT(view.Eye(), IsNear(1, 2, 3));
    EXPECT_THAT(view.Look(), IsNear(1, 2, -3));
}
