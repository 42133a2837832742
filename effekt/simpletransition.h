// SPDX-License-Identifier: MIT
#pragma once

#include "kore/color.h"
#include "kore/entity.h"

namespace effect {

/// Fades a large square in front of the viewer in or out, as a transition of the whole picture.
class SimpleTransition final : public kore::Entity {
public:
    /// Compiles the square; needs a current OpenGL context.
    SimpleTransition();

    char const* Name() override { return "SimpleTransition"; }

    /// The fade begins with the first update. A fade out ends just above 0, at the last frame before its end.
    void UpdateLogic(kore::StateData const& state) override;
    void InternalDraw() override;

    /// InternalDraw without any transform.
    void Draw() override { InternalDraw(); }

    /// Colour of the square, initially white; its alpha is the fade's.
    void SetColor(kore::Color<float> const& color) { myColor = color; }

    /// @param direction  1 fades in, anything else (initially 0) fades out
    void SetDirection(int direction) { myDirection = direction; }

    /// @param time  length of the fade, seconds; initially 1
    void SetTime(float const& time) { myTime = time; }

private:
    kore::Color<float> myColor{1, 1, 1, 1};
    unsigned int mySquare; ///< display list
    float myTime = 1;
    float myStart = -1; ///< scene time of the first update, seconds; below 0: not yet
    int myDirection = 0;
    float myAlpha = 0;
};

} // namespace effect
