// SPDX-License-Identifier: MIT
// Drawing kit for figures: smooth contours, frames that move a part of the body as one piece, and
// limbs that hang between two joints. Everything is flat, y up, in the units of the model that uses it.
//
// Curves are centripetal Catmull-Rom splines through the points given. A point written twice in a row
// is a corner: the curve ends there and starts again. Sampling follows the shape: a span gets as many
// steps as keep the chord within tolerance() of the curve, so long smooth lines need few vertices. A model sets
// $tol for a coarser or finer outline than usual.

function tolerance() = is_undef($tol) ? 0.001 : $tol; // in the model's units

// ---- vectors ---------------------------------------------------------------------------------------

function direction(v) = v / max(norm(v), 1e-9);
function left_of(v) = [-v[1], v[0]];                 // v turned by +90 degrees
function mix(a, b, t) = a + (b - a) * t;             // a at t = 0, b at t = 1
function turned(v, a) = [v[0] * cos(a) - v[1] * sin(a), v[0] * sin(a) + v[1] * cos(a)];
function polar(r, a) = r * [cos(a), sin(a)];
function reversed(list) = [for (i = [len(list) - 1 : -1 : 0]) list[i]];
function clamp(x, lo, hi) = min(max(x, lo), hi);
function angle_between(a, b) =                       // degrees, 0 to 180
    acos(clamp((a * b) / max(norm(a) * norm(b), 1e-12), -1, 1));

// ---- curves ----------------------------------------------------------------------------------------

function spacing(a, b) = sqrt(norm(b - a));          // centripetal parameter of a span
function slope(p0, p1, p2) =                         // derivative at p1, zero spans left out
    let (d0 = spacing(p0, p1), d1 = spacing(p1, p2))
    d0 == 0 ? (p2 - p1) / d1 :
    d1 == 0 ? (p1 - p0) / d0 :
    (p1 - p0) / d0 - (p2 - p0) / (d0 + d1) + (p2 - p1) / d1;
function hermite(a, b, ta, tb, t) =
    a * (2 * t * t * t - 3 * t * t + 1) + ta * (t * t * t - 2 * t * t + t) +
    b * (3 * t * t - 2 * t * t * t) + tb * (t * t * t - t * t);

// Samples of one span, its first point included, its last point not; empty where a point is doubled.
function span(p0, p1, p2, p3) =
    p1 == p2 ? [] :
    let (d = spacing(p1, p2),
         ta = slope(p0, p1, p2) * d,
         tb = slope(p1, p2, p3) * d,
         bend = angle_between(ta, p2 - p1) + angle_between(p2 - p1, tb),
         n = clamp(ceil(sqrt(norm(p2 - p1) * bend * PI / 180 / (8 * tolerance()))), 1, 24))
    [for (k = [0 : n - 1]) hermite(p1, p2, ta, tb, k / n)];

// The curve through points: closed, or from the first to the last.
function curve(points, closed = true) =
    let (n = len(points))
    closed
        ? [for (i = [0 : n - 1])
               each span(points[(i + n - 1) % n], points[i], points[(i + 1) % n], points[(i + 2) % n])]
        : concat([for (i = [0 : n - 2])
                      each span(points[max(i - 1, 0)], points[i], points[i + 1], points[min(i + 2, n - 1)])],
                 [points[n - 1]]);

module contour(points) { polygon(curve(points)); }

// ---- frames: a part of the body with its own origin, turn and size -----------------------------------

// size scales the part; flip = true mirrors its x axis before it is turned.
function frame(origin, turn = 0, size = 1, flip = false) = [origin, turn, size, flip];
function at(f, p) = f[0] + turned([f[3] ? -p[0] : p[0], p[1]] * f[2], f[1]);
function all_at(f, points) = [for (p = points) at(f, p)];
module place(f) { translate(f[0]) rotate(f[1]) scale(f[2]) mirror([f[3] ? 1 : 0, 0]) children(); }

// ---- limbs -----------------------------------------------------------------------------------------

// A limb along its joints, two or more. profiles holds one table for each bone: rows of [t, left, right]
// say how far the flesh reaches to either side of the bone at the fraction t of its length, looking from
// the root down, in units of girth. flip swaps the sides; bow bends each bone to the left by so much in
// its middle. The outline runs smoothly over the joints; in the bend of a joint, where the flesh of two
// bones meets, it turns at the crease.
module limb(joints, profiles, girth = 1, flip = false, bow = [0, 0, 0, 0]) {
    polygon(concat(curve(limb_side(joints, profiles, girth, flip, bow, 1), false),
                   reversed(curve(limb_side(joints, profiles, girth, flip, bow, -1), false))));
}

// The outline points on one side: 1 the left one, -1 the right one.
function limb_side(joints, profiles, girth, flip, bow, side) =
    let (bones = len(joints) - 1,
         way = [for (i = [0 : bones - 1]) direction(joints[i + 1] - joints[i])],
         column = (side > 0) == flip ? 2 : 1,
         // The bend towards this side at either end of each bone, as the tangent of half its angle.
         inward = [for (i = [0 : bones])
                       i == 0 || i == bones ? 0 :
                       let (cross = way[i - 1][0] * way[i][1] - way[i - 1][1] * way[i][0],
                            half = angle_between(way[i - 1], way[i]) / 2)
                       cross * side > 0 ? tan(half) : 0])
    [for (i = [0 : bones - 1])
         let (length = norm(joints[i + 1] - joints[i]), out = left_of(way[i]) * side)
         each concat(
             // a bend away from this side of more than 50 degrees shows the bone: elbow or knee
             i > 0 && turn_away(way[i - 1], way[i], side) > 50
                 ? [joints[i] + direction(way[i - 1] - way[i]) * profiles[i][0][column] * girth * bony] : [],
             [for (row = profiles[i])
                  let (t = row[0], w = row[column] * girth)
                  if ((i == 0 || t >= 0) && (i == bones - 1 || t <= 1) &&
                      (inward[i] == 0 || t * length >= w * inward[i]) &&
                      (inward[i + 1] == 0 || (1 - t) * length >= w * inward[i + 1]))
                      joints[i] + way[i] * t * length + out * w + left_of(way[i]) * bow[i] * 4 * t * (1 - t)])];
// The point beside a bone, at the fraction t of its length and so far to the left (right if negative).
function beside(a, b, t, out) = mix(a, b, t) + left_of(direction(b - a)) * out;

bony = 1.22; // how far the bone of a bent joint stands out, in half widths of the limb there
function turn_away(u, v, side) = (u[0] * v[1] - u[1] * v[0]) * side < 0 ? angle_between(u, v) : 0;

// A chain on a spline: round at both ends, radius interpolated along with the points. Points are
// [x, y, radius]; hulls of neighbouring discs, so that it may curl over itself.
module chain(points) {
    samples = curve(points, false);
    for (i = [0 : len(samples) - 2])
        hull() {
            disc(samples[i]);
            disc(samples[i + 1]);
        }
}
module disc(p) {
    translate([p[0], p[1]]) circle(r = p[2], $fn = clamp(ceil(180 / acos(1 - min(tolerance() / p[2], 0.5))), 8, 48));
}

// A lock of hair or a ribbon: pointed at its end, points are [x, y, half width].
module lock(points) {
    samples = curve(points, false, $tol = tolerance() / 2); // its edges bend more than its middle
    n = len(samples);
    function p(i) = [samples[i][0], samples[i][1]];
    function side(i) = left_of(direction(p(min(i + 1, n - 1)) - p(max(i - 1, 0)))) * samples[i][2];
    for (i = [0 : n - 2])
        hull() polygon([p(i) + side(i), p(i + 1) + side(i + 1), p(i + 1) - side(i + 1), p(i) - side(i)]);
    disc(samples[0]);
}

// ---- finish ----------------------------------------------------------------------------------------

// Fills creases with a fillet of radius r. The filled copy lies slightly inside the shape, so that the shape's
// own outline stays as it is, point by point, wherever there is no crease.
module fillet(r) {
    children();
    offset(delta = -2 * tolerance()) offset(r = -r, $fs = 0.03, $fa = 20) offset(delta = r) children();
}
// Rounds whatever sticks out.
module rounded(r) { offset(r = r, $fs = 0.02, $fa = 12) offset(r = -r, $fs = 0.02, $fa = 12) children(); }

// The screen shows everything 4/3 as wide as it is: draw in natural proportions, flatten last. The
// result is a thin slab whose face at height z is the picture.
module silhouette(z = 0) {
    translate([0, 0, z]) linear_extrude(0.1) scale([0.75, 1]) children();
}
