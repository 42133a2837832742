// SPDX-License-Identifier: MIT
#pragma once

#include "effekt/blinking.h"
#include "effekt/plasmatexture.h"
#include "kore/entity.h"

#include <array>

namespace effect {

/// A landscape of 63 x 63 cells, x and y from -32 to 31, whose heights are read from a moving plasma: the darker the
/// texel, the higher the spike, and a black one is infinitely high.
class TextureMountain final : public kore::Entity, public BlinkingWireframe {
public:
    TextureMountain();

    char const* Name() override { return "TextureMountain"; }
    void UpdateLogic(kore::StateData const& state) override;

    /// Deliberate: draws faces and lines whatever the two drawing flags say.
    void InternalDraw() override;

private:
    static constexpr int grid_size = 64; ///< texels along each side

    PlasmaTexture myPlasma;
    std::array<float, 256> myHeights; ///< height of every texel value, units
};

} // namespace effect
