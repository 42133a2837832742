// SPDX-License-Identifier: MIT
#pragma once

#include "kore/mutator.h"

namespace kore {

/// Holds a rotation, or turns it at a constant rate measured from the first frame on which it runs.
class StaticRotator final : public Mutator {
public:
    char const* Name() override { return "StaticRotator"; }

    /// @param rot  the rotation imposed, degrees per axis; initially (0, 0, 0)
    void SetRot(Vector3<float> const& rot) { my_rot = rot; }

    /// @param spin  added per second of scene time, degrees per axis; starts the turning, also when it is (0, 0, 0)
    void SetSpin(Vector3<float> const& spin) {
        my_spin = spin;
        spinning = true;
    }

    void Do(std::shared_ptr<Entity>& entity, StateData const& state) override;

private:
    Vector3<float> my_rot{0, 0, 0};
    Vector3<float> my_spin{0, 0, 0};
    bool spinning = false;
    bool started = false;
    float start_time = 0; ///< scene time of the first Do, seconds; never reset
};

} // namespace kore
