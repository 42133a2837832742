#pragma once

namespace kore {

/// What the loader takes of one object of a mesh file.
inline constexpr int max_object_vertices = 100000;
inline constexpr int max_object_faces = 100000;
inline constexpr int max_object_faces_full = 10000; ///< of an object that is stored triangle by triangle

} // namespace kore
