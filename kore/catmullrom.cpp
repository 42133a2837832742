// SPDX-License-Identifier: MIT
#include "kore/catmullrom.h"

#include <algorithm>

namespace kore {

void CatmullRom::AddSplinePoint(Vector3<float> const& p) {
    points.push_back(p);
    delta_t = static_cast<float>(1.0 / static_cast<double>(points.size()));
}

Vector3<float> CatmullRom::GetSplinePoint(float const& t) const {
    int const p = static_cast<int>(t / delta_t);
    auto const clamped = [this](int i) -> Vector3<float> const& {
        return points[static_cast<std::size_t>(std::clamp(i, 0, PointCount() - 1))];
    };
    float const u = (t - static_cast<float>(p) * delta_t) / delta_t;
    return Solve(u, clamped(p - 1), clamped(p), clamped(p + 1), clamped(p + 2));
}

Vector3<float> CatmullRom::Solve(float const& u, Vector3<float> const& p0, Vector3<float> const& p1,
                                 Vector3<float> const& p2, Vector3<float> const& p3) {
    float const u2 = u * u;
    float const u3 = u * u2;
    float const b0 = 0.5f * (2 * u2 - u3 - u);
    float const b1 = 0.5f * (3 * u3 - 5 * u2 + 2);
    float const b2 = 0.5f * (-3 * u3 + 4 * u2 + u);
    float const b3 = 0.5f * (u3 - u2);
    return ((p0 * b0 + p1 * b1) + p2 * b2) + p3 * b3;
}

} // namespace kore
