// SPDX-License-Identifier: MIT
// The frames: edges of solids as bars.
include <lib/polyhedra.scad>

which = "framecube";

if (which == "framecube") frame(at_radius(cube_solid, 10.5), 1.2, 0.75);
if (which == "frametetrahedron") frame(at_radius(tetrahedron, 10.5), 1.2, 0.6);
if (which == "frameoctoball") ridged_frame(blown_up(at_radius(octahedron, 6.5)), 0.45, 0.9);
if (which == "frameicosahedron") frame(at_radius(icosahedron, 2), 0.06, 0.95);
if (which == "hollowsoccerball") frame(at_radius(truncated(icosahedron), 4), 0.26, 0.9);
