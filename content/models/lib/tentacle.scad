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
    curve(concat(points, coil(last, last - points[n - 2], hand, r, turns)), false);

function lengths(line, i = 1, sum = [0]) =
    i == len(line) ? sum : lengths(line, i + 1, concat(sum, [sum[i - 1] + norm(line[i] - line[i - 1])]));

// Half width at the fraction u of the length.
function taper(root, u) = root * (0.955 * pow(1 - u, 1.3) + 0.045);

function index_at(s, wanted, i = 0) = i >= len(s) - 2 || s[i + 1] >= wanted ? i : index_at(s, wanted, i + 1);

// Distances of the suckers along the line: each as far from the last as it is wide.
function sucker_steps(root, total, s, least) =
    let (w = taper(root, s / total))
    w < least || s >= total ? [] : concat([s], sucker_steps(root, total, s + w * 0.92, least));

// The bare arm; root is its half width at the first point.
module tentacle(points, root, hand, r, turns) {
    line = tentacle_line(points, hand, r, turns);
    s = lengths(line);
    n = len(line);
    function edge(i, q) = line[i] + normal_at(line, i) * q * taper(root, s[i] / s[n - 1]);
    for (i = [0 : n - 2])
        hull() polygon([edge(i, 1), edge(i + 1, 1), edge(i + 1, -1), edge(i, -1)]);
    translate(line[n - 1]) circle(taper(root, 1), $fn = 8);
}
function normal_at(line, i) = left_of(direction(line[min(i + 1, len(line) - 1)] - line[max(i - 1, 0)]));

// Its suckers, from the distance first on, down to an arm of half width least: side 1 on the left of the
// line, -1 on the right.
module suckers(points, root, hand, r, turns, side, first, least = 0.085) {
    line = tentacle_line(points, hand, r, turns);
    s = lengths(line);
    total = s[len(line) - 1];
    for (d = sucker_steps(root, total, s[0] + first, least)) {
        i = index_at(s, d);
        t = (d - s[i]) / max(s[i + 1] - s[i], 1e-6);
        w = taper(root, d / total);
        out = direction(mix(normal_at(line, i), normal_at(line, i + 1), t)) * side;
        translate(mix(line[i], line[i + 1], t) + out * w * 0.95)
            rotate(atan2(out[1], out[0]) - 90) scale(w) sucker();
    }
}
// A cup on a short foot, standing up from the x axis; one unit is the half width of its arm.
module sucker() {
    polygon([[-0.17, -0.2], [0.17, -0.2], [0.17, 0.08], [0.30, 0.18], [0.35, 0.27], [0.31, 0.34], [0.15, 0.37],
             [-0.15, 0.37], [-0.31, 0.34], [-0.35, 0.27], [-0.30, 0.18], [-0.17, 0.08]]);
}
