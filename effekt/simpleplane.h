// SPDX-License-Identifier: MIT
#pragma once

#include "kore/color.h"
#include "kore/entity.h"

namespace effect {

/// A flat rectangle about its origin, in the plane z = 0, in one colour: initially white.
class SimplePlane final : public kore::Entity {
public:
    /// Compiles the rectangle; needs a current OpenGL context.
    /// @param width, height  units
    SimplePlane(float width, float height);

    char const* Name() override { return "SimplePlane"; }
    void UpdateLogic(kore::StateData const&) override {}
    void InternalDraw() override;

    /// Takes red, green and blue.
    void SetColor(kore::Color<float> const& color);

private:
    float myColor[3] = {1, 1, 1};
    unsigned int myPlane; ///< display list
};

} // namespace effect
