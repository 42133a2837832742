// SPDX-License-Identifier: MIT
// A thick figure eight: a tube along a curve that crosses itself at a distance. It stands in the plane across
// (1, -1, 0), its long axis along z.
use <lib/tube.scad>

thickness = 1.2;        // radius of the tube
long = 10 - thickness;  // reach of the curve along z
wide = 4.4;             // and across
apart = 1.32;           // distance of each strand from the plane where they cross
around = 48;
sides = 6;

// The curve in its own frame: along, across, out of the plane.
function curve(t) = [long * cos(t), wide * sin(2 * t), apart * sin(t)];
// Even steps: the lengths along the curve up to each angle, looked up backwards.
fine = 720;
lengths = [for (i = 0, s = 0; i <= fine;
                s = s + norm(curve((i + 1) * 360 / fine) - curve(i * 360 / fine)), i = i + 1) s];
angles = [for (i = [0:around - 1])
    lookup(i * lengths[fine] / around, [for (k = [0:fine]) [lengths[k], k * 360 / fine]])];

// Along to z, across to (1, 1, 0), out of the plane to (1, -1, 0).
function placed(p) = [(p[1] + p[2]) / sqrt(2), (p[1] - p[2]) / sqrt(2), p[0]];
function unit(v) = v / norm(v);

centres = [for (t = angles) placed(curve(t))];
aheads = [for (t = angles) unit(placed(curve(t + 0.01)) - placed(curve(t - 0.01)))];
out = placed([0, 0, 1]);
rights = [for (a = aheads) unit(cross(a, out))];
ups = [for (i = [0:around - 1]) cross(rights[i], aheads[i])];

tube(centres, rights, ups, thickness, sides);
