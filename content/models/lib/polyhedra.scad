// SPDX-License-Identifier: MIT
// Convex solids by their exact coordinates, and frames made of their edges.
//
// A solid is [points, faces]: points around the origin, each face a loop of point numbers, counter-clockwise seen
// from outside. `frame` turns the faces over at the end, because OpenSCAD requires clockwise order.

golden = (1 + sqrt(5)) / 2;

function unit(v) = v / norm(v);
function middle(points) = [for (k = [0:2]) sum([for (p = points) p[k]]) / len(points)];
function sum(values, i = 0) = i == len(values) ? 0 : values[i] + sum(values, i + 1);
function flat_list(lists) = [for (l = lists) for (e = l) e];

// The solid with all its points at `radius`.
function at_radius(solid, radius) = [[for (p = solid[0]) radius * unit(p)], solid[1]];

// The triangles between points that lie one edge apart from each other.
function triangles(points, edge) = let (n = len(points)) [
    for (a = [0:n - 1], b = [a + 1:1:n - 1], c = [b + 1:1:n - 1])
        if (abs(norm(points[a] - points[b]) - edge) < 1e-6 && abs(norm(points[b] - points[c]) - edge) < 1e-6 &&
            abs(norm(points[c] - points[a]) - edge) < 1e-6)
            cross(points[b] - points[a], points[c] - points[a]) * points[a] > 0 ? [a, b, c] : [a, c, b]];

tetrahedron = let (p = [[1, 1, 1], [1, -1, -1], [-1, 1, -1], [-1, -1, 1]]) [p, triangles(p, sqrt(8))];
octahedron = let (p = [[1, 0, 0], [-1, 0, 0], [0, 1, 0], [0, -1, 0], [0, 0, 1], [0, 0, -1]]) [p, triangles(p, sqrt(2))];
icosahedron = let (p = [for (k = [0:2], s = [1, -1], t = [golden, -golden])
    [[0, s, t], [s, t, 0], [t, 0, s]][k]]) [p, triangles(p, 2)];
cube_solid = [
    [for (z = [-1, 1], y = [-1, 1], x = [-1, 1]) [x, y, z]],
    [[0, 2, 3, 1], [4, 5, 7, 6], [0, 1, 5, 4], [2, 6, 7, 3], [0, 4, 6, 2], [1, 3, 7, 5]]];

// The faces around a point of a solid of triangles, counter-clockwise: their numbers, and the far ends of the edges
// between.
function face_after(faces, point, end) = [for (i = [0:len(faces) - 1], k = [0:2])
    if (faces[i][k] == point && faces[i][(k + 1) % 3] == end) i][0];
function third(face, point) = [for (k = [0:2]) if (face[k] == point) face[(k + 2) % 3]][0];
function ends_around(faces, point, list) =
    let (next = third(faces[face_after(faces, point, list[len(list) - 1])], point))
    next == list[0] ? list : ends_around(faces, point, concat(list, [next]));
function first_end(faces, point) = [for (f = faces, k = [0:2]) if (f[k] == point) f[(k + 1) % 3]][0];
function ring(faces, point) = ends_around(faces, point, [first_end(faces, point)]);

// The dual of a solid of triangles: a point for each face, a face for each point.
function dual(solid) = [
    [for (f = solid[1]) middle([for (v = f) solid[0][v]])],
    [for (v = [0:len(solid[0]) - 1]) [for (e = ring(solid[1], v)) face_after(solid[1], v, e)]]];
dodecahedron = dual(icosahedron);

// The corners of a solid of triangles cut off at a third of its edges: from the icosahedron, the football.
function truncated(solid) = let (
    points = solid[0], faces = solid[1],
    ways = [for (f = faces, k = [0:2]) [f[k], f[(k + 1) % 3]]],
    number = [for (a = [0:len(points) - 1]) [for (b = [0:len(points) - 1]) let (at = search([[a, b]], ways)) at[0]]])
    [[for (w = ways) (2 * points[w[0]] + points[w[1]]) / 3],
     concat([for (v = [0:len(points) - 1]) [for (e = ring(faces, v)) number[v][e]]],
            [for (f = faces) flat_list([for (k = [0:2]) let (a = f[k], b = f[(k + 1) % 3])
                                        [number[a][b], number[b][a]]])])];

// Every triangle cut in four, the new points on the sphere through the old: an octahedron becomes a ball.
function blown_up(solid) = let (
    points = solid[0], faces = solid[1], n = len(points), radius = norm(points[0]),
    edges = [for (f = faces, k = [0:2]) if (f[k] < f[(k + 1) % 3]) [f[k], f[(k + 1) % 3]]],
    number = [for (a = [0:n - 1]) [for (b = [0:n - 1]) let (at = search([[min(a, b), max(a, b)]], edges)[0])
        is_num(at) ? n + at : undef]])
    [concat(points, [for (e = edges) radius * unit(points[e[0]] + points[e[1]])]),
     [for (f = faces) let (a = f[0], b = f[1], c = f[2], ab = number[a][b], bc = number[b][c], ca = number[c][a])
        for (t = [[a, ab, ca], [b, bc, ab], [c, ca, bc], [ab, bc, ca]]) t]];

// A face's outline moved inward by `by` from every edge.
function inset(outline, by) = let (n = len(outline)) [for (i = [0:n - 1]) let (
    p = outline[i], a = unit(outline[(i + n - 1) % n] - p), b = unit(outline[(i + 1) % n] - p),
    half = acos(a * b) / 2) p + unit(a + b) * by / sin(half)];

module solid(s) polyhedron(points = s[0], faces = [for (f = s[1]) [for (i = [len(f) - 1:-1:0]) f[i]]], convexity = 10);

// The edges of a solid as bars, its faces open. On the outside a bar reaches `bar` in from its edge on both faces;
// its walls lead towards the solid's middle and end on a smaller copy of the solid, at `inner` of its size.
module frame(s, bar, inner) {
    holes = [for (f = s[1]) inset([for (v = f) s[0][v]], bar)];
    n = len(s[0]);
    first = starts(s[1], 2 * n, 2);
    solid([concat(s[0], inner * s[0], flat_list([for (h = holes) concat(h, inner * h)])),
           [for (i = [0:len(s[1]) - 1]) let (f = s[1][i], m = len(f)) for (k = [0:m - 1]) let (
               l = (k + 1) % m, a = f[k], b = f[l],
               ha = first[i] + k, hb = first[i] + l, // the hole, outside
               ga = ha + m, gb = hb + m)             // and inside
               each [[a, b, hb, ha], [ha, hb, gb, ga], [ga, gb, n + b, n + a]]]]);
}

// The same with bars of three sides: the walls of a bar meet in an edge inside. The outer sides are laid in three
// triangles, so that no splinter is longer than it must be when they fly.
module ridged_frame(s, bar, inner) {
    holes = [for (f = s[1]) inset([for (v = f) s[0][v]], bar)];
    n = len(s[0]);
    edges = [for (f = s[1]) for (k = [0:len(f) - 1]) let (a = f[k], b = f[(k + 1) % len(f)]) if (a < b) [a, b]];
    first = starts(s[1], 2 * n + len(edges), 1);
    solid([concat(s[0], inner * s[0], [for (e = edges) (s[0][e[0]] + s[0][e[1]]) / 2], flat_list(holes)),
           [for (i = [0:len(s[1]) - 1]) let (f = s[1][i], m = len(f)) for (k = [0:m - 1]) let (
               l = (k + 1) % m, a = f[k], b = f[l],
               half = 2 * n + search([[min(a, b), max(a, b)]], edges)[0],
               ha = first[i] + k, hb = first[i] + l)
               each [[a, half, ha], [half, hb, ha], [half, b, hb], [ha, hb, n + b, n + a]]]]);
}

// Where the points of each face's hole begin in the list, `times` for each corner.
function starts(faces, at, times) = [for (i = 0, p = at; i < len(faces); p = p + times * len(faces[i]), i = i + 1) p];
