// SPDX-License-Identifier: MIT
#pragma once

#include "kore/camera.h"
#include "kore/smoothroute.h"

namespace kore {

/// Moves the point that a camera looks at along a smooth route.
class SmoothCam final : public SmoothRoute {
public:
    char const* Name() override { return "SmoothCam"; }

    /// Sets the look-at point; leaves it alone once the route is finished.
    /// @param entity  must be an effect::Camera, which is not checked
    void Do(std::shared_ptr<Entity>& entity, StateData const& state) override {
        if (Vector3<float> const* point = Advance(state.time)) {
            static_cast<effect::Camera&>(*entity).SetLookPos(*point); // NOLINT(*-static-cast-downcast): as said
        }
    }
};

} // namespace kore
