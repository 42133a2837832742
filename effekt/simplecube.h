// SPDX-License-Identifier: MIT
#pragma once

#include "kore/entity.h"

namespace effect {

/// A cube of edge 1 about its origin, in whatever colour is current.
class SimpleCube final : public kore::Entity {
public:
    /// Compiles the cube; needs a current OpenGL context.
    SimpleCube();

    char const* Name() override { return "SimpleCube"; }
    void UpdateLogic(kore::StateData const&) override {}
    void InternalDraw() override;

private:
    unsigned int myCube; ///< display list
};

} // namespace effect
