// SPDX-License-Identifier: MIT
#pragma once

#include "kore/entity.h"

namespace effect {

/// The entity that sets the view: its position is the eye, and it has a point to look at. Its rotation is not used.
class Camera final : public kore::Entity {
public:
    char const* Name() override { return "Camera"; }

    /// Multiplies the look-at onto the current matrix, +y up, and leaves it there for what is drawn next.
    void InternalDraw() override;
    void UpdateLogic(kore::StateData const&) override {}

    /// InternalDraw without any transform of its own.
    void Draw() override { InternalDraw(); }

    /// The point looked at: units of the scene, initially (0, 0, 0).
    void SetLookPos(kore::Vector3<float> const& pos) { look = pos; }
    kore::Vector3<float> const& GetLookPos() const { return look; }
    void IncLookPos(kore::Vector3<float> const& by) { look += by; }

    /// Draws the box of a camera's frustum as seven red quads, for looking at a camera from another one.
    void DebugCam();

private:
    kore::Vector3<float> look{0, 0, 0};
};

} // namespace effect
