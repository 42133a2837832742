// SPDX-License-Identifier: MIT
#pragma once

#include "kore/mutator.h"

#include <vector>

namespace kore {

/// Moves an entity along timed straight lines and jumps.
class RoutePositioner final : public Mutator {
public:
    enum route_transition_t : int {
        LINEAR = 0, ///< a straight line from the previous position, taking the step's length
        JUMP = 1,   ///< to the target at the step's start
    };

    char const* Name() override { return "RoutePositioner"; }

    /// Appends a step; steps are added in the order of their times. The first step's target is also where the route
    /// begins, so a route starts with a JUMP. A step of any other type is never completed: the route stops at it.
    /// @param start   scene time, seconds
    /// @param length  duration of a LINEAR step, seconds
    /// @param target  position at the end of the step
    void AddPos(route_transition_t const& type, float const& start, float const& length, Vector3<float> const& target);

    /// Completes the step in progress; Do calls it, at most once a frame.
    void Increment();

    /// Sets the entity's position; leaves it alone once the route is finished.
    void Do(std::shared_ptr<Entity>& entity, StateData const& state) override;

private:
    struct Transition {
        route_transition_t type;
        float start;
        float length;
        Vector3<float> target;
    };

    std::vector<Transition> transitions;
    unsigned int current = 0;
    Vector3<float> pos{0, 0, 0};
    Vector3<float> from{0, 0, 0};
};

} // namespace kore
