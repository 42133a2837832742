// SPDX-License-Identifier: MIT
#pragma once

#include "tools/asc/ascfile.h"

#include <string>
#include <vector>

namespace asc {

/// Everything wrong with one object's mesh, each fault with its line: faces without area, duplicate faces and
/// vertices, unused vertices, neighbours with opposite winding, closed parts that look inward, drawn edges that
/// are not exactly the creases, more faces or vertices than the loader holds, or (if `shattered`) more faces
/// than a mesh to be shattered may have.
std::vector<Fault> faults_of(ReadObject const& read, bool shattered);

/// One line about one object: name, counts, box, whether flat, closed or open, and the quality of its triangles
/// (smallest angle of all, and share of faces with an angle below 15 degrees).
std::string summary(Object const& object);

/// All faults of a file in the order of their lines: those of its layout and those of its meshes.
std::vector<Fault> faults_of(ReadFile const& file, bool shattered);

} // namespace asc
