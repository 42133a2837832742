// SPDX-License-Identifier: MIT
#pragma once

#include "kore/catmullrom.h"
#include "kore/mutator.h"

#include <vector>

namespace kore {

/// A route of timed jumps and glides along splines; what it moves is up to SmoothPositioner and SmoothCam.
/// A glide is written as a run of SMOOTH calls: the first gives its start and first way point, each further one
/// adds a way point and its share of time. Every way point of a glide gets an equal share of the whole.
class SmoothRoute : public Mutator {
public:
    enum route_transition_t {
        SMOOTH = 0, ///< follow the step's spline from its first way point to its last
        JUMP = 1,   ///< to the point at the step's start
    };

    /// @param type    SMOOTH extends the glide before it, if there is one, or starts a new one
    /// @param start   scene time, seconds; ignored where a glide is extended
    /// @param length  seconds; the lengths of a glide's way points add up
    /// @param point   a jump's target or a glide's next way point
    void AddPos(route_transition_t const& type, float const& start, float const& length, Vector3<float> const& point);

    /// Completes the step in progress; Do calls it, at most once a frame.
    void Increment();

protected:
    SmoothRoute() = default;
    SmoothRoute(SmoothRoute const&) = default;
    SmoothRoute& operator=(SmoothRoute const&) = default;
    ~SmoothRoute() = default;

    /// Moves on to scene time t.
    /// @return the point to impose on this frame, or null once the route is finished
    Vector3<float> const* Advance(float t);

private:
    struct Transition {
        route_transition_t type;
        float start;
        float length;
        Vector3<float> target; ///< of a jump; (0, 0, 0) for a glide
        CatmullRom spline;     ///< way points of a glide
    };

    std::vector<Transition> transitions;
    unsigned int current = 0;
    Vector3<float> pos{0, 0, 0};
};

} // namespace kore
