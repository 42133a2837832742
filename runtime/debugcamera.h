// SPDX-License-Identifier: MIT
#pragma once

#include "kore/vector.h"

#include <cstdint>

/// What the held keys of the debugging view do; movement_camera is a toggle: set, translations move the eye; clear, the
/// point looked at.
constexpr std::uint64_t movement_z_in = 0x1;
constexpr std::uint64_t movement_z_out = 0x2;
constexpr std::uint64_t movement_y_up = 0x4;
constexpr std::uint64_t movement_y_down = 0x8;
constexpr std::uint64_t movement_x_left = 0x10;
constexpr std::uint64_t movement_x_right = 0x20;
constexpr std::uint64_t movement_rot_x_left = 0x40;
constexpr std::uint64_t movement_rot_x_right = 0x80;
constexpr std::uint64_t movement_rot_y_up = 0x100;
constexpr std::uint64_t movement_rot_y_down = 0x200;
constexpr std::uint64_t movement_rot_z_fw = 0x400;
constexpr std::uint64_t movement_rot_z_bw = 0x800;
constexpr std::uint64_t movement_camera = 0x1000;

/// The free camera of the debugging view and the steps that its held keys take.
class DebugCamera {
public:
    /// Sets or clears movements.
    void Hold(std::uint64_t bits) { movement |= bits; }
    void Release(std::uint64_t bits) { movement &= ~bits; }

    /// Lets go of every held key, as when the window loses the keyboard.
    void ReleaseAll() { movement &= movement_camera; }

    void ToggleFree() { free = !free; }

    /// Puts it where it is to see from, and has it look at a point: units of the scene.
    void Place(kore::Vector3<float> const& from, kore::Vector3<float> const& at) {
        eye = from;
        look = at;
    }
    void ToggleTarget() { movement ^= movement_camera; }
    void ResetRotation() { rotation = {0, 0, 0}; }

    /// 10 units a frame faster, or slower, but never below 0: there it becomes 0.1 again.
    void Faster() { speed += 10; }
    void Slower();

    /// Takes one step of every held movement; once per frame. Deliberate: the steps depend on the frame rate.
    void Step();

    /// Multiplies the look-at onto the current matrix, +y up.
    void Apply() const;

    /// Whether it stands in for the scenes' cameras.
    bool IsFree() const { return free; }

    kore::Vector3<float> const& Eye() const { return eye; }
    kore::Vector3<float> const& Look() const { return look; }
    /// Degrees. Deliberate: kept up and never applied to the picture.
    kore::Vector3<float> const& Rotation() const { return rotation; }
    /// Step per frame: units or degrees.
    float Speed() const { return speed; }
    std::uint64_t HeldMovement() const { return movement; }

private:
    bool free = false;
    kore::Vector3<float> eye{0, 0, 0};
    kore::Vector3<float> look{0, 0, -1};
    kore::Vector3<float> rotation{0, 0, 0};
    float speed = 0.1f;
    std::uint64_t movement = 0;
};
