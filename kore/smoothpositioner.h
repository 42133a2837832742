// SPDX-License-Identifier: MIT
#pragma once

#include "kore/smoothroute.h"

namespace kore {

/// Moves an entity along a smooth route.
class SmoothPositioner final : public SmoothRoute {
public:
    char const* Name() override { return "SmoothPositioner"; }

    /// Sets the entity's position; leaves it alone once the route is finished.
    void Do(std::shared_ptr<Entity>& entity, StateData const& state) override {
        if (Vector3<float> const* point = Advance(state.time)) entity->SetPos(*point);
    }
};

} // namespace kore
