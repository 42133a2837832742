// SPDX-License-Identifier: MIT
#pragma once

/// The view of the show's camera.
namespace kore::frustum {

inline constexpr double field_of_view = 90.0; ///< vertical, degrees
inline constexpr double aspect = 1.0;         ///< width / height. Deliberate: whatever the window's is
inline constexpr double near_plane = 1.0;     ///< distances, units of the scene
inline constexpr double far_plane = 2000.0;

} // namespace kore::frustum
