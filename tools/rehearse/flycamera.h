// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/debugcamera.h"

#include <string>

/// A camera that the mouse moves: it turns about where it stands, and goes where it looks.
class FlyCamera {
public:
    /// Takes the place of another camera.
    void StartAt(kore::Vector3<float> const& from, kore::Vector3<float> const& look);

    /// Turns by so many pixels of the mouse: to the right, and down.
    void Turn(float x, float y);

    /// Moves sideways and up by so many pixels of the mouse, as if it pulled the scene along.
    void Pull(float x, float y);

    /// Goes on by so many notches of the wheel; a tenth of the way to what it looks at each, at first.
    void Go(float notches);

    /// Puts a free view there.
    void Apply(DebugCamera& view) const { view.Place(eye, Look()); }

    /// Two lines for a scene's file.
    std::string Lines() const;

    kore::Vector3<float> const& Eye() const { return eye; }
    kore::Vector3<float> Look() const;

private:
    kore::Vector3<float> Ahead() const;

    kore::Vector3<float> eye{0, 0, 0};
    float yaw = 0;      ///< radians to the right of negative z
    float pitch = 0;    ///< radians up
    float distance = 1; ///< to the point looked at, units
};
