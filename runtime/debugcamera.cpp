// SPDX-License-Identifier: MIT
#include "runtime/debugcamera.h"

#include <GL/gl.h>
#include <GL/glu.h>

namespace {

using Axis = float kore::Vector3<float>::*;

constexpr Axis x = &kore::Vector3<float>::x;
constexpr Axis y = &kore::Vector3<float>::y;
constexpr Axis z = &kore::Vector3<float>::z;

/// What one movement adds to one axis, in steps.
struct Movement {
    std::uint64_t bit;
    Axis axis;
    int sign;
};

// clang-format off
constexpr Movement translations[] = {
    {movement_z_out,   z, 1},
    {movement_z_in,    z, -1},
    {movement_y_up,    y, 1},
    {movement_y_down,  y, -1},
    {movement_x_right, x, 1},
    {movement_x_left,  x, -1},
};

constexpr Movement rotations[] = {
    {movement_rot_y_up,    y, 1},
    {movement_rot_y_down,  y, -1},
    {movement_rot_x_right, x, 1},
    {movement_rot_x_left,  x, -1},
    {movement_rot_z_fw,    z, 1},
    {movement_rot_z_bw,    z, -1},
};
// clang-format on

} // namespace

void DebugCamera::Slower() {
    speed -= 10;
    if (speed < 0) speed = 0.1f;
}

void DebugCamera::Step() {
    kore::Vector3<float>& target = movement & movement_camera ? eye : look;
    for (Movement const& m : translations) {
        if (movement & m.bit) target.*m.axis += static_cast<float>(m.sign) * speed;
    }
    for (Movement const& m : rotations) {
        if (!(movement & m.bit)) continue;
        float& angle = rotation.*m.axis;
        angle += static_cast<float>(m.sign) * speed;
        // Deliberate: from one end of the range to the other, not to 0.
        if (m.sign > 0 && angle > 360) angle = -360;
        if (m.sign < 0 && angle < -360) angle = 360;
    }
}

void DebugCamera::Apply() const { gluLookAt(eye.x, eye.y, eye.z, look.x, look.y, look.z, 0, 1, 0); }
