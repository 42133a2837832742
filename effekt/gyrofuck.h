// SPDX-License-Identifier: MIT
#pragma once

#include "effekt/blinking.h"
#include "kore/ascmodel.h"
#include "kore/entity.h"

namespace effect {

/// Three rings turning about tilted axes, like a gyroscope's. The two inner ones breathe against each other and change
/// roles on every even beat.
class GyroFuck final : public kore::Entity, public BlinkingWireframe {
public:
    /// Loads "donut2.asc" into the library and takes its object "donut2"; if that fails nothing is drawn.
    explicit GyroFuck(kore::AscModel_ptr models);

    char const* Name() override { return "GyroFuck"; }
    void UpdateLogic(kore::StateData const& state) override;

    /// Deliberate: the third ring pops one matrix more than it pushes, and so takes the one that Draw has pushed.
    /// Faces and lines are drawn whatever the two drawing flags say.
    void InternalDraw() override;

private:
    void DrawRing(float scale);

    unsigned int myModel = 0;     ///< display list of the faces
    unsigned int myWireframe = 0; ///< display list of the edges
    float myTime = 0;             ///< seconds of scene time
    float myScaleA = 50;
    float myScaleB = 50;
    float myScaleC = 80;
    float myLastSwap = 0; ///< scene time of the last even beat, seconds
    float myPeriod = 1;   ///< of one breath, seconds
    int myPhase = 0;      ///< which of the inner rings grows
};

} // namespace effect
