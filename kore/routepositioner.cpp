// SPDX-License-Identifier: MIT
#include "kore/routepositioner.h"

namespace kore {

void RoutePositioner::AddPos(route_transition_t const& type, float const& start, float const& length,
                             Vector3<float> const& target) {
    transitions.push_back({type, start, length, target});
    if (transitions.size() == 1) {
        pos = target;
        from = target;
    }
}

void RoutePositioner::Increment() {
    pos = transitions[current].target;
    from = pos;
    ++current;
}

void RoutePositioner::Do(std::shared_ptr<Entity>& entity, StateData const& state) {
    if (current == transitions.size()) return;

    Transition const& step = transitions[current];
    float const t = state.time;
    if (step.type == JUMP) {
        if (t >= step.start) Increment();
    } else if (step.type == LINEAR) {
        if (t >= step.start + step.length) {
            Increment();
        } else if (t >= step.start) {
            float const f = (t - step.start) / step.length;
            pos = from + (step.target - from) * f;
        }
    }
    entity->SetPos(pos);
}

} // namespace kore
