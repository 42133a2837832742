// SPDX-License-Identifier: MIT
// Tentacles: a spline that ends in a coil, tapering from the root to the tip, with suckers on one side.
use <figure.scad>

// Points of a coil that starts at p in direction d and winds to the left (hand = 1) or right (-1): its
// radius falls from r to r * rest within the turns.
function coil(p, d, hand, r, turns, rest = 0.24) =
    let (centre = p + left_of(direction(d)) * hand * r,
         start = atan2(p[1] - centre[1], p[0] - centre[0]),
         n = ceil(turns * 10))
    [for (i = [1 : n]) centre + polar(r * pow(rest, i / n), start + hand * 360 * turns * i / n)];

// The middle line through the points, coil and all; turns = 0 leaves the coil out.
function tentacle_line(points, hand, r, turns) =
    let (n = len(points), last = points[n - 1])
    curve(concat(points, coil(last, last - points[n - 2], hand, r, turns)), false, $tol = tolerance() / 2);

function lengths(line, i = 1, sum = [0]) =
    i == len(line) ? sum : lengths(line, i + 1, concat(sum, [sum[i - 1] + norm(line[i] - line[i - 1])]));

// Half width at the fraction u of the length.
function taper(root, u) = root * (0.97 * pow(1 - u, 1.3) + 0.03);

// The span of the distances s in which the wanted one lies.
function index_at(s, wanted, i = 0) = i >= len(s) - 2 || s[i + 1] >= wanted ? i : index_at(s, wanted, i + 1);
function value_at(s, values, wanted) =
    let (i = index_at(s, wanted), span = max(s[i + 1] - s[i], 1e-9))
    mix(values[i], values[i + 1], (wanted - s[i]) / span);

function half_widths(line, root) = let (s = lengths(line)) [for (d = s) taper(root, d / s[len(s) - 1])];
function normal_at(line, i) = left_of(direction(line[min(i + 1, len(line) - 1)] - line[max(i - 1, 0)]));

// The bare arm; root is its half width at the first point.
module tentacle(points, root, hand, r, turns) {
    line = tentacle_line(points, hand, r, turns);
    w = half_widths(line, root);
    n = len(line);
    function edge(i, side) = line[i] + normal_at(line, i) * side * w[i];
    for (i = [0 : n - 2])
        hull() polygon([edge(i, 1), edge(i + 1, 1), edge(i + 1, -1), edge(i, -1)]);
    translate(line[n - 1]) circle(w[n - 1], $fn = 12);
}

// Distances of the suckers along the edge: each as far from the last as it is wide.
function sucker_steps(at, s, w, least) =
    let (here = value_at(s, w, at))
    here < least || at >= s[len(s) - 1] ? [] : concat([at], sucker_steps(at + here * 0.95, s, w, least));

// Its suckers, from the distance first on, down to an arm of half width least: side 1 on the left of the
// line, -1 on the right.
module suckers(points, root, hand, r, turns, side, first, least) {
    line = tentacle_line(points, hand, r, turns);
    w = half_widths(line, root);
    edge = [for (i = [0 : len(line) - 1]) line[i] + normal_at(line, i) * side * w[i]];
    s = lengths(edge);
    for (at = sucker_steps(first, s, w, least)) {
        size = value_at(s, w, at);
        along = value_at(s, edge, at + 0.3 * size) - value_at(s, edge, at - 0.3 * size);
        translate(value_at(s, edge, at))
            rotate(atan2(along[1], along[0]) + (side > 0 ? 0 : 180)) scale(size) sucker();
    }
}
// A cup on a short foot, standing up from the x axis; one unit is the half width of its arm.
module sucker() {
    contour([[-0.17, -0.12], [-0.17, -0.12], [-0.155, 0.06], [-0.29, 0.15], [-0.345, 0.25], [-0.28, 0.335], [0, 0.36],
             [0.28, 0.335], [0.345, 0.25], [0.29, 0.15], [0.155, 0.06], [0.17, -0.12], [0.17, -0.12]], $tol = 0.008);
}
