// SPDX-License-Identifier: MIT
#include "kore/staticrotator.h"

namespace kore {

void StaticRotator::Do(std::shared_ptr<Entity>& entity, StateData const& state) {
    // Deliberate: latched once and for all, spinning or not. In a scene played again the time may lie before it.
    if (!started) {
        started = true;
        start_time = state.time;
    }
    if (spinning) {
        entity->SetRot(my_rot + my_spin * (state.time - start_time));
    } else {
        entity->SetRot(my_rot);
    }
}

} // namespace kore
