// SPDX-License-Identifier: MIT
#include "kore/smoothroute.h"

namespace kore {

void SmoothRoute::AddPos(route_transition_t const& type, float const& start, float const& length,
                         Vector3<float> const& point) {
    if (type == JUMP) {
        transitions.push_back({type, start, length, point, {}});
    } else {
        if (!transitions.empty() && transitions.back().type == SMOOTH) {
            transitions.back().length += length;
        } else {
            transitions.push_back({type, start, length, {0, 0, 0}, {}});
        }
        transitions.back().spline.AddSplinePoint(point);
    }
    if (transitions.size() == 1) pos = transitions.front().target;
}

void SmoothRoute::Increment() {
    Transition const& step = transitions[current];
    pos = step.type == SMOOTH ? step.spline.GetSplinePoint(1.0f) : step.target;
    ++current;
}

Vector3<float> const* SmoothRoute::Advance(float t) {
    if (current == transitions.size()) return nullptr;

    Transition const& step = transitions[current];
    if (step.type == JUMP) {
        if (t >= step.start) Increment();
    } else if (t >= step.start + step.length) {
        Increment();
    } else if (t >= step.start) {
        float const u = (t - step.start) / step.length;
        pos = step.spline.GetSplinePoint(u);
    }
    return &pos;
}

} // namespace kore
