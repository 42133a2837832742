// SPDX-License-Identifier: MIT
// Tubes along closed curves: rings, and whatever a path tells.

// A tube with an even polygon as its section. centres: points around the closed path; right, up: unit vectors across
// it at each point.
module tube(centres, right, up, radius, sides) {
    n = len(centres);
    points = [for (i = [0:n - 1], k = [0:sides - 1]) let (a = 360 * k / sides)
        centres[i] + radius * (cos(a) * right[i] + sin(a) * up[i])];
    at = function(i, k) (i % n) * sides + k % sides;
    polyhedron(points = points, convexity = 10,
        faces = [for (i = [0:n - 1], k = [0:sides - 1]) [at(i, k), at(i, k + 1), at(i + 1, k + 1), at(i + 1, k)]]);
}

// A torus about z: `ring` from the middle to the middle of the tube.
module torus(ring, radius, around, sides) {
    angles = [for (i = [0:around - 1]) 360 * i / around];
    tube([for (a = angles) ring * [cos(a), sin(a), 0]], [for (a = angles) [cos(a), sin(a), 0]],
         [for (a = angles) [0, 0, 1]], radius, sides);
}
