// SPDX-License-Identifier: MIT
#pragma once

#include "effekt/blinking.h"
#include "kore/ascmodel.h"
#include "kore/entity.h"

#include <array>

namespace effect {

/// Six tori that rise and fall in a column from 60 below the origin to 60 above, swelling and shrinking on the way.
class TorusFountain final : public kore::Entity, public BlinkingWireframe {
public:
    /// The motion of one torus.
    struct sizepos {
        int move_direction = 1;   ///< +1 rising, -1 falling
        float move_turn_time = 0; ///< scene time at which the rise or fall began, seconds
        kore::Vector3<float> position{0, 0, 0};
        int size_direction = 1;   ///< +1 growing, -1 shrinking
        float size_turn_time = 0; ///< scene time at which the growing or shrinking began, seconds
        float size = 0;           ///< scale, from 1 to 9
    };

    /// Loads "torus2.asc" into the library and takes its object "torus2"; if that fails nothing is drawn.
    explicit TorusFountain(kore::AscModel_ptr models);

    char const* Name() override { return "TorusFountain"; }
    void UpdateLogic(kore::StateData const& state) override;

    /// Deliberate: draws faces and lines whatever the two drawing flags say.
    void InternalDraw() override;

    /// The cubic Hermite step (3 - 2x) x^2 (Perlin and Hoffert, "Hypertexture", 1989), without clamping.
    static float CubicSmoothStep(float const& x);

    /// Deliberate: goes from a, away from b, to 2a - b.
    /// @param x  0 to 1
    static kore::Vector3<float> Linear(kore::Vector3<float> a, kore::Vector3<float> b, float const& x);
    static float LinearFloat(float a, float b, float const& x);

private:
    static constexpr std::size_t drawn = 6; ///< Deliberate: of the twelve records six are used

    static void UpdateTorus(sizepos& torus, float t, float move_period, float size_period);

    unsigned int myModel = 0;     ///< display list of the faces
    unsigned int myWireframe = 0; ///< display list of the edges
    float myMovePeriod = 2;       ///< of one rise or fall, seconds
    float mySizePeriod = 2;       ///< of one growth or shrinking, seconds
    std::array<sizepos, 12> myTori;
};

} // namespace effect
