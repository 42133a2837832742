// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace kore {

/// The largest mesh file that is read, bytes; and the most objects that are read from one.
inline constexpr std::size_t max_mesh_file = std::size_t{64} << 20;
inline constexpr int max_mesh_objects = 10000;

/// What the loader takes of one object of a mesh file.
inline constexpr int max_object_vertices = 100000;
inline constexpr int max_object_faces = 100000;
inline constexpr int max_object_faces_full = 10000; ///< of an object that is stored triangle by triangle

} // namespace kore
