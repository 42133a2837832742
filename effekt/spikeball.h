// SPDX-License-Identifier: MIT
#pragma once

#include "effekt/blinking.h"
#include "kore/entity.h"

namespace effect {

/// A placeholder: a cube of edge 1 in the main colour.
/// Deliberate: its logic does nothing, so it never reports itself started, a Blinker never reaches it, and a strobe
/// sent by a direct Blink stays where it is.
class SpikeBall final : public kore::Entity, public Blinking {
public:
    /// Compiles the cube; needs a current OpenGL context.
    SpikeBall();

    char const* Name() override { return "SpikeBall"; }
    void UpdateLogic(kore::StateData const&) override {}
    void InternalDraw() override;

private:
    unsigned int myCube; ///< display list
};

} // namespace effect
