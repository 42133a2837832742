// SPDX-License-Identifier: MIT
#pragma once

#include "kore/object.h"
#include "kore/vector.h"

#include <vector>

namespace kore {

/// Uniform Catmull-Rom spline through a list of control points, with one parameter t over the whole list.
/// Deliberate: point i of N lies at t = i / N, so the travel ends at 1 - 1/N and the last 1/N of the parameter is spent
/// near the last point, with a small bulge back towards the one before.
/// (E. Catmull and R. Rom, "A class of local interpolating splines", 1974; tension one half.)
class CatmullRom final : public Object {
public:
    char const* Name() override { return "CatmullRom"; }

    /// Appends a control point, which moves the parameters of all earlier ones.
    void AddSplinePoint(Vector3<float> const& p);

    /// @param t  0 at the first point; outside [0, 1] the end pieces are extrapolated
    /// @return the point at t; the spline must hold at least one point
    Vector3<float> GetSplinePoint(float const& t) const;

    int PointCount() const { return static_cast<int>(points.size()); }

    /// @param i  0 to PointCount() - 1, not checked
    Vector3<float>& GetPoint(int const& i) { return points[static_cast<std::size_t>(i)]; }

    /// Blends four neighbouring points.
    /// @param u  0 yields p1, 1 yields p2
    static Vector3<float> Solve(float const& u, Vector3<float> const& p0, Vector3<float> const& p1,
                                Vector3<float> const& p2, Vector3<float> const& p3);

private:
    std::vector<Vector3<float>> points;
    float delta_t = 0; ///< parameter span of one segment, 1 / number of points
};

} // namespace kore
