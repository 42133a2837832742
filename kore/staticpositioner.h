// SPDX-License-Identifier: MIT
#pragma once

#include "kore/mutator.h"

namespace kore {

/// Holds an entity at one position.
class StaticPositioner final : public Mutator {
public:
    char const* Name() override { return "StaticPositioner"; }

    /// @param position  units of the scene; initially (0, 0, 0)
    void SetPos(Vector3<float> const& position) { pos = position; }

    void Do(std::shared_ptr<Entity>& entity, StateData const&) override { entity->SetPos(pos); }

private:
    Vector3<float> pos{0, 0, 0};
};

} // namespace kore
