// SPDX-License-Identifier: MIT
#include "runtime/debugcamera.h"
#include "tests/support/glrecorder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using V = kore::Vector3<float>;

MATCHER_P3(Is, x, y, z, "") {
    *result_listener << arg.x << ' ' << arg.y << ' ' << arg.z;
    return std::abs(arg.x - static_cast<float>(x)) < 1e-4f && std::abs(arg.y - static_cast<float>(y)) < 1e-4f &&
           std::abs(arg.z - static_cast<float>(z)) < 1e-4f;
}

TEST(DebugCamera, StandsAtTheOriginAndLooksAlongNegativeZ) {
    DebugCamera const view;
    EXPECT_FALSE(view.IsFree());
    EXPECT_THAT(view.Eye(), Is(0, 0, 0));
    EXPECT_THAT(view.Look(), Is(0, 0, -1));
    EXPECT_THAT(view.Rotation(), Is(0, 0, 0));
    EXPECT_EQ(view.Speed(), 0.1f);
    EXPECT_EQ(view.HeldMovement(), 0u);
}

TEST(DebugCamera, IsPutSomewhere) {
    DebugCamera view;
    view.Place({1, 2, 3}, {4, 5, 6});
    EXPECT_THAT(view.Eye(), Is(1, 2, 3));
    EXPECT_THAT(view.Look(), Is(4, 5, 6));
    EXPECT_FALSE(view.IsFree());
}

TEST(DebugCamera, HasTheBitsOfItsMovements) {
    std::uint64_t const bits[] = {movement_z_in,     movement_z_out,      movement_y_up,       movement_y_down,
                                  movement_x_left,   movement_x_right,    movement_rot_x_left, movement_rot_x_right,
                                  movement_rot_y_up, movement_rot_y_down, movement_rot_z_fw,   movement_rot_z_bw,
                                  movement_camera};
    std::uint64_t expected = 1;
    for (std::uint64_t const bit : bits) {
        EXPECT_EQ(bit, expected);
        expected *= 2;
    }
}

TEST(DebugCamera, MovesThePointLookedAtOrTheEye) {
    struct {
        std::uint64_t bit;
        V by;
        // clang-format off
    } const rows[] = {
        {movement_z_out,   {0, 0, 0.1f}},
        {movement_z_in,    {0, 0, -0.1f}},
        {movement_y_up,    {0, 0.1f, 0}},
        {movement_y_down,  {0, -0.1f, 0}},
        {movement_x_right, {0.1f, 0, 0}},
        {movement_x_left,  {-0.1f, 0, 0}},
    };
    // clang-format on
    for (auto const& row : rows) {
        SCOPED_TRACE(row.bit);
        DebugCamera view;
        view.Hold(row.bit);
        view.Step();
        view.Step();
        V const twice = row.by * 2.0f;
        EXPECT_THAT(view.Look(), Is(twice.x, twice.y, twice.z - 1));
        EXPECT_THAT(view.Eye(), Is(0, 0, 0));
        view.ToggleTarget();
        view.Step();
        EXPECT_THAT(view.Look(), Is(twice.x, twice.y, twice.z - 1));
        EXPECT_THAT(view.Eye(), Is(row.by.x, row.by.y, row.by.z));
        view.ToggleTarget();
        view.Release(row.bit);
        view.Step();
        EXPECT_THAT(view.Look(), Is(twice.x, twice.y, twice.z - 1));
        EXPECT_THAT(view.Rotation(), Is(0, 0, 0));
    }
}

struct Turn {
    std::uint64_t bit;
    V axis;
};

// clang-format off
Turn const turns[] = {
    {movement_rot_x_right, {1, 0, 0}},
    {movement_rot_x_left,  {-1, 0, 0}},
    {movement_rot_y_up,    {0, 1, 0}},
    {movement_rot_y_down,  {0, -1, 0}},
    {movement_rot_z_fw,    {0, 0, 1}},
    {movement_rot_z_bw,    {0, 0, -1}},
};
// clang-format on

TEST(DebugCamera, TurnsAndWrapsFromOneEndOfTheRangeToTheOther) {
    for (Turn const& turn : turns) {
        SCOPED_TRACE(turn.bit);
        DebugCamera view;
        for (int i = 0; i < 9; ++i) view.Faster(); // 90.1 degrees a step
        view.Hold(turn.bit);
        for (int i = 0; i < 3; ++i) view.Step();
        EXPECT_THAT(view.Rotation(), Is(turn.axis.x * 270.3f, turn.axis.y * 270.3f, turn.axis.z * 270.3f));
        view.Step(); // 360.4 is beyond, and becomes the other end
        EXPECT_THAT(view.Rotation(), Is(turn.axis.x * -360, turn.axis.y * -360, turn.axis.z * -360));
        view.Step();
        EXPECT_THAT(view.Rotation(), Is(turn.axis.x * -269.9f, turn.axis.y * -269.9f, turn.axis.z * -269.9f));
        view.ResetRotation();
        EXPECT_THAT(view.Rotation(), Is(0, 0, 0));
        EXPECT_THAT(view.Look(), Is(0, 0, -1));
    }
}

TEST(DebugCamera, TakesOppositeMovementsTogether) {
    DebugCamera view;
    view.Hold(movement_x_left | movement_x_right | movement_y_up);
    view.Step();
    EXPECT_THAT(view.Look(), Is(0, 0.1f, -1));
}

TEST(DebugCamera, IsNeverSlowerThanATenth) {
    DebugCamera view;
    view.Slower(); // 0.1 - 10 is below 0
    EXPECT_EQ(view.Speed(), 0.1f);
    view.Faster();
    EXPECT_FLOAT_EQ(view.Speed(), 10.1f);
    view.Slower(); // about 0.1, and not reset
    EXPECT_NEAR(view.Speed(), 0.1f, 1e-5);
    EXPECT_NE(view.Speed(), 0.1f);
}

TEST(DebugCamera, ReleasesItsKeysButKeepsItsTarget) {
    DebugCamera view;
    view.ToggleTarget();
    view.Hold(movement_x_left | movement_rot_z_fw);
    view.ReleaseAll();
    EXPECT_EQ(view.HeldMovement(), movement_camera);
}

TEST(DebugCamera, AppliesItsLookAtAndNeverItsRotation) {
    gl::reset();
    DebugCamera view;
    view.ToggleFree();
    EXPECT_TRUE(view.IsFree());
    view.Hold(movement_rot_x_left | movement_y_up);
    view.Step();
    gl::clear_log();
    view.Apply();
    EXPECT_EQ(gl::calls(), "LookAt(0,0,0,0,0.1,-1,0,1,0)");
    view.ToggleFree();
    EXPECT_FALSE(view.IsFree());
}

} // namespace
