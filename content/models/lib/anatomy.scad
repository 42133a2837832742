// SPDX-License-Identifier: MIT
// Parts of a woman's body, in heads: one unit is the height of the head, the figure eight of them.
// Limb profiles are [t, left, right] tables for limb() of figure.scad, looking down a limb from its
// root; the other parts are drawn in a frame of their own; their comments give its origin and x axis.

// ---- legs ------------------------------------------------------------------------------------------

// Seen from before or behind, left is the outer side: the thigh's long outer sweep, the calf's belly
// higher outside than inside, the ankle bone lower outside.
thigh_front = [[0.00, 0.43, 0.36], [0.14, 0.435, 0.385], [0.30, 0.390, 0.370], [0.50, 0.312, 0.290],
               [0.70, 0.232, 0.222], [0.85, 0.182, 0.190], [0.95, 0.168, 0.188]];
shin_front  = [[0.04, 0.160, 0.180], [0.14, 0.184, 0.170], [0.27, 0.220, 0.190], [0.40, 0.210, 0.206],
               [0.56, 0.155, 0.165], [0.76, 0.100, 0.106], [0.92, 0.085, 0.085], [1.04, 0.068, 0.068]];

// Seen from the side, walking to the right, left of a leg that hangs down is its front: the thigh is
// full before, hollow behind the knee; the shin runs straight, the calf swells and thins to the tendon.
thigh_side = [[0.00, 0.36, 0.40], [0.12, 0.375, 0.40], [0.32, 0.365, 0.335], [0.55, 0.300, 0.260],
              [0.78, 0.225, 0.205], [0.92, 0.195, 0.180]];
shin_side  = [[0.02, 0.190, 0.150], [0.12, 0.150, 0.205], [0.26, 0.135, 0.255],
              [0.40, 0.125, 0.240], [0.58, 0.110, 0.165], [0.78, 0.092, 0.100], [0.92, 0.086, 0.084],
              [1.04, 0.066, 0.066]];

// ---- arms ------------------------------------------------------------------------------------------

// Left is the outer side: deltoid and the back of the arm; the forearm swells just below the elbow.
upper_arm = [[-0.10, 0.03, 0.03], [-0.07, 0.10, 0.09], [0.00, 0.170, 0.17], [0.10, 0.205, 0.185],
             [0.22, 0.208, 0.18], [0.42, 0.172, 0.168], [0.62, 0.150, 0.152], [0.82, 0.122, 0.128],
             [0.94, 0.116, 0.112]];
forearm   = [[0.06, 0.116, 0.115], [0.20, 0.140, 0.128], [0.36, 0.132, 0.115],
             [0.60, 0.098, 0.088], [0.82, 0.072, 0.068], [0.95, 0.066, 0.066], [1.04, 0.046, 0.046]];

// ---- head ------------------------------------------------------------------------------------------

// Profile looking along x; origin under the chin where the neck's axis meets it, crown at y = 1.
profile_head = [
    [-0.06, 0.985], [0.14, 0.965], [0.29, 0.875], [0.365, 0.765], [0.392, 0.665], [0.392, 0.605],
    [0.366, 0.545], [0.378, 0.495], [0.425, 0.425], [0.480, 0.372], [0.484, 0.347], [0.455, 0.328],
    [0.407, 0.318], [0.405, 0.290], [0.432, 0.258], [0.436, 0.240], [0.404, 0.222], [0.404, 0.218],
    [0.426, 0.196], [0.424, 0.174], [0.384, 0.142], [0.388, 0.110], [0.404, 0.075], [0.396, 0.030],
    [0.350, -0.005], [0.27, 0.005], [0.13, 0.055], [0.05, 0.02], [-0.10, 0.0], [-0.30, 0.12],
    [-0.40, 0.33], [-0.465, 0.56], [-0.43, 0.78], [-0.29, 0.93]];
module head_profile() { contour(profile_head); }

// ---- feet ------------------------------------------------------------------------------------------

// A high heel from the side. Origin in the ankle, toes along x, floor at y = -0.62. turn is the angle by
// which the foot looks out of the picture's plane, towards the viewer or away; lean that of the shin to the
// foot's y axis.
module pump(turn = 0, lean = 0) {
    contour(concat(
        [turned([0.060, 0.18], lean), turned([0.090, 0.02], lean / 2)],
        [for (p = [[0.150, -0.14], [0.25, -0.28], [0.38, -0.42], [0.52, -0.505],
             [0.64, -0.55], [0.72, -0.59], [0.72, -0.59], [0.71, -0.618], [0.71, -0.618], [0.58, -0.622],
             [0.45, -0.615], [0.34, -0.575], [0.19, -0.475], [0.05, -0.385], [-0.035, -0.355],
             [-0.035, -0.355], [-0.072, -0.47], [-0.085, -0.62], [-0.085, -0.62], [-0.145, -0.62],
             [-0.145, -0.62], [-0.150, -0.47], [-0.180, -0.34], [-0.185, -0.22], [-0.150, -0.11]])
             [p[0] * mix(1, cos(turn), clamp(-p[1] / 0.3, 0, 1)), p[1]]],
        [turned([-0.096, 0.03], lean / 2), turned([-0.060, 0.18], lean)]));
}

// A bare foot on its toes, from the side. Origin in the ankle, toes along x and down.
module pointed_foot(lean = 0) {
    contour(concat(
        [turned([0.06, 0.18], lean), turned([0.092, 0.02], lean / 2)],
        [[0.15, -0.12], [0.26, -0.24], [0.37, -0.38], [0.44, -0.54],
         [0.475, -0.66], [0.46, -0.71], [0.40, -0.715], [0.35, -0.64], [0.27, -0.545], [0.17, -0.43],
         [0.06, -0.31], [-0.07, -0.235], [-0.145, -0.18], [-0.150, -0.10]],
        [turned([-0.096, 0.03], lean / 2), turned([-0.06, 0.18], lean)]));
}

// The lean for a foot in the frame f below the given knee.
function lean_to(knee, f) =
    let (v = turned(knee - f[0], -f[1])) atan2(v[1], f[3] ? -v[0] : v[0]) - 90;

// ---- hands -----------------------------------------------------------------------------------------

// An open hand. Origin in the wrist, the middle of the palm along x, the thumb on the left (y > 0).
// fingers: [spread, curl] of each, from the first to the little one, in degrees to the left; curl is what
// each of the three links adds. thumb the same.
module hand(fingers = [[4, -3], [-2, -8], [-7, -11], [-12, -14]], thumb = [30, -12]) {
    knuckles = [[0.36, 0.092, 0.036], [0.38, 0.030, 0.037], [0.37, -0.035, 0.036], [0.33, -0.090, 0.031]];
    lengths = [0.37, 0.40, 0.37, 0.29];
    contour([[-0.12, 0.046], [0.00, 0.066], [0.16, 0.125], [0.30, 0.138], [0.39, 0.125], [0.41, 0.03],
             [0.39, -0.07], [0.33, -0.125], [0.16, -0.115], [0.00, -0.066], [-0.12, -0.046]]);
    for (i = [0 : 3])
        finger(knuckles[i], lengths[i], fingers[i][0], fingers[i][1]);
    finger([0.12, 0.09, 0.050], 0.30, thumb[0], thumb[1]);
}
module finger(root, length, spread, curl) {
    p1 = [root[0], root[1]] + polar(length * 0.42, spread);
    p2 = p1 + polar(length * 0.33, spread + curl);
    p3 = p2 + polar(length * 0.25, spread + 2 * curl);
    chain([root, [p1[0], p1[1], root[2] * 0.92], [p2[0], p2[1], root[2] * 0.82], [p3[0], p3[1], root[2] * 0.62]]);
}
