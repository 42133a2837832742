// SPDX-License-Identifier: MIT
#include "kore/enabler.h"

#include <utility>

namespace kore {

Enabler::Enabler(std::shared_ptr<Entity> entity, int start, int length, float beat, bool relative)
    : my_entity(std::move(entity)), start_beat(start), my_length(length), start_time(static_cast<float>(start) * beat),
      relative_to_camera(relative) {}

void Enabler::AddMutator(std::shared_ptr<Mutator> mutator) { mutators.push_back(std::move(mutator)); }

void Enabler::UpdateLogic(StateData const& state) {
    drawing_enabled = state.beat_count >= start_beat && state.beat_count < start_beat + my_length;
    if (drawing_enabled) {
        my_entity->UpdateLogic(state);
        Mutate(state);
    }
}

void Enabler::Mutate(StateData const& state) {
    for (auto const& mutator : mutators) mutator->Do(my_entity, state);
}

} // namespace kore
