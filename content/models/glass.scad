// SPDX-License-Identifier: MIT
// The pane that the tag breaks: rays and rings about the point of impact, shards small there and big at the rim.
// One triangle is one shard, so the triangles are written by hand and not left to a mesher.

impact = [-0.12, 0];
half = [3.6, 3.2]; // of the pane
rays = 16;
rings = 10;
smallest = 0.17; // radius of the innermost ring
seed = 17;

// Directions, evenly spread and varied a little; the ray nearest to a corner of the pane goes through it.
shake = rands(-0.22, 0.22, rays, seed);
even = [for (i = [0:rays - 1]) (i + 0.5 + shake[i]) * 360 / rays];
corners = [for (s = [[1, 1], [-1, 1], [-1, -1], [1, -1]]) angle_of([s[0] * half[0], s[1] * half[1]] - impact)];
angles = [for (a = even) let (here = [for (c = corners) if (abs(c - a) == min([for (b = even) abs(c - b)])) c])
    len(here) > 0 ? here[0] : a];

function angle_of(p) = (atan2(p[1], p[0]) + 360) % 360;

// Distance from the impact to the rim in the direction `a`.
function reach(a) = let (c = cos(a), s = sin(a)) min(
    abs(c) < 1e-9 ? 1e9 : (sign(c) * half[0] - impact[0]) / c,
    abs(s) < 1e-9 ? 1e9 : (sign(s) * half[1] - impact[1]) / s);

// Where ray i crosses ring k: each ring is larger than the last by the same factor, the outermost is the rim.
// The rings between vary along the rays and the rays bend a little, as cracks do.
along = rands(-0.2, 0.2, rays * rings, seed + 1);
aside = rands(-0.13, 0.13, rays * rings, seed + 2);
function point(i, k) = let (
    j = i % rays, last = k == rings - 1, n = j * rings + k,
    a = angles[j] + (last ? 0 : aside[n] * 360 / rays),
    r = smallest * pow(reach(a) / smallest, (k + (last ? 0 : along[n])) / (rings - 1)))
    impact + r * [cos(a), sin(a)];
function number(i, k) = 1 + (i % rays) * rings + k;

// Two triangles for each field of the web, cut along the shorter diagonal.
function field(i, k) = norm(point(i, k) - point(i + 1, k + 1)) < norm(point(i + 1, k) - point(i, k + 1))
    ? [[number(i, k), number(i, k + 1), number(i + 1, k + 1)], [number(i, k), number(i + 1, k + 1), number(i + 1, k)]]
    : [[number(i, k), number(i, k + 1), number(i + 1, k)], [number(i + 1, k), number(i, k + 1), number(i + 1, k + 1)]];

polyhedron(
    points = [for (p = concat([impact], [for (i = [0:rays - 1], k = [0:rings - 1]) point(i, k)])) [p[0], p[1], 0]],
    faces = concat([for (i = [0:rays - 1]) [0, number(i, 0), number(i + 1, 0)]],
                   [for (i = [0:rays - 1], k = [0:rings - 2], t = field(i, k)) t]));
