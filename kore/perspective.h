// SPDX-License-Identifier: MIT
#pragma once

namespace kore {

/// Deliberate: two units in the last place above the double nearest to pi.
inline constexpr double PI = 3.141592653589794;

/// Multiplies a perspective frustum onto the current matrix (the caller selects and clears the projection matrix).
/// @param fovy    full vertical field of view, degrees
/// @param aspect  width / height
/// @param zNear   distance of the near plane, above 0
/// @param zFar    distance of the far plane
void setPerspective(double fovy, double aspect, double zNear, double zFar);

} // namespace kore
