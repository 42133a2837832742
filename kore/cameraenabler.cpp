// SPDX-License-Identifier: MIT
#include "kore/cameraenabler.h"

#include <utility>

namespace kore {

void CameraEnabler::AddMutator(std::shared_ptr<Mutator> mutator) { mutators.push_back(std::move(mutator)); }

void CameraEnabler::Mutate(StateData const& state) {
    for (auto const& mutator : mutators) mutator->Do(my_entity, state);
}

} // namespace kore
