// SPDX-License-Identifier: MIT
// A Maltese cross with roofed arms: eight tips, a ridge from the middle to every notch. It stands in the plane
// across (1, -1, 0), an arm up.
include <lib/polyhedra.scad>

reach = 9;      // from the middle to a tip
spread = 27;    // angle between a tip and the middle of its arm
notch = 6.0;    // from the middle to a notch
waist = 1.0;    // from the middle to an inner corner, along both axes
ridge = 1.6;    // half thickness along the ridges
edge = 0.55;    // and at the tips

tip = reach * [sin(spread), cos(spread)];
slope = (ridge - edge) / tip[0];

// One arm, clockwise: right inner corner, right tip, notch, left tip. Turned to all four sides, upper side then lower.
function arm(up) = [[waist, waist, up * (ridge - slope * waist)], [tip[0], tip[1], up * edge], [0, notch, up * ridge],
                    [-tip[0], tip[1], up * edge]];
function turned(p, quarter) = quarter == 0 ? p : turned([p[1], -p[0], p[2]], quarter - 1);
function placed(p) = [(p[0] + p[2]) / sqrt(2), (p[0] - p[2]) / sqrt(2), p[1]];

points = concat([for (up = [1, -1], q = [0:3], p = arm(up)) turned(p, q)], [[0, 0, ridge], [0, 0, -ridge]]);
function corner(side, quarter, k) = 16 * side + 4 * ((quarter + 4) % 4) + k;

// Clockwise seen from above; the lower side is the mirror image.
roofs = [for (q = [0:3]) each [[32, corner(0, q, 2), corner(0, q, 1), corner(0, q, 0)],
                               [32, corner(0, q - 1, 0), corner(0, q, 3), corner(0, q, 2)]]];
floors = [for (f = roofs) [for (i = [len(f) - 1:-1:0]) f[i] == 32 ? 33 : f[i] + 16]];
rim = [for (q = [0:3]) each [corner(0, q - 1, 0), corner(0, q, 3), corner(0, q, 2), corner(0, q, 1)]];
walls = [for (i = [0:len(rim) - 1]) let (a = rim[i], b = rim[(i + 1) % len(rim)]) [a, b, b + 16, a + 16]];

solid([[for (p = points) placed(p)], concat(roofs, floors, walls)]);
