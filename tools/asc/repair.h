// SPDX-License-Identifier: MIT
#pragma once

#include "tools/asc/mesh.h"

namespace asc {

/// Points closer than this become one vertex, units, by default.
inline constexpr double weld_distance = 1e-5;

/// Rounds coordinates to the precision of files, joins vertices less than `distance` apart, drops faces without area,
/// duplicate faces and unused vertices. A face whose corners lie on one line is not simply dropped: the neighbour
/// across its longest side is split in two, so that no gap opens.
void clean(Object& object, double distance = weld_distance);

/// Flips faces so that neighbours agree; then a closed part looks outward, a flat part with its normal along z looks
/// to +z, and any other open part keeps the side of its first face.
void wind(Object& object);

/// Keeps only the faces that lie wholly in the mesh's lowest plane z = const: the shape of a thin extrusion.
void keep_lowest_plane(Object& object);

/// Moves the object so that the middle of its box lies at `middle`.
void centre(Object& object, Vec3 middle);

} // namespace asc
