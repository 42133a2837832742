// SPDX-License-Identifier: MIT
#pragma once

#include "tools/asc/mesh.h"

namespace asc {

/// The least number of triangles that `refine` would cut the object into: by its area, and by its creases.
double least_refined(Object const& object, double size);

/// Cuts every planar facet of a mesh (faces that meet without a crease) into triangles of even size.
/// Constrained Delaunay refinement: the outline of a facet stays, points are added on it and inside it until no side is
/// longer than `size` (units) and no angle smaller than `min_angle` (degrees, at most 30), except where the outline
/// itself is narrower. Facets share the points on their common edge, so no gap opens. Needs a clean mesh of consistent
/// winding. Returns false, with the object unchanged, if the facets cannot agree on the points of their edges.
bool refine(Object& object, double size, double min_angle);

} // namespace asc
