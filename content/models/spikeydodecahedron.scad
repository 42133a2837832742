// SPDX-License-Identifier: MIT
// A dodecahedron with a spike on every face.
include <lib/polyhedra.scad>

core = 4.8; // radius of the dodecahedron's corners
tip = 10;   // radius of the tips

base = at_radius(dodecahedron, core);
tips = [for (f = base[1]) tip * unit(middle([for (v = f) base[0][v]]))];
n = len(base[0]);

solid([concat(base[0], tips),
       [for (i = [0:len(base[1]) - 1]) let (f = base[1][i], m = len(f)) for (k = [0:m - 1])
           [f[k], f[(k + 1) % m], n + i]]]);
