// SPDX-License-Identifier: MIT
// Tentacles that reach in from the upper left. The screen ends at x = -4.8 and y = 3.6 (drawn here in
// natural proportions); a second copy, turned by half a turn, comes in from the lower right and is cut at
// y = 1.6. The tunnel is seen at x 0 to 4.4 below y = 0.3.
use <lib/figure.scad>
use <lib/tentacle.scad>

// Each arm: points of the middle line, half width at the root, hand and radius of the coil, its turns;
// then the suckers: their side, the distance from the root where they begin, the half width where they end.
arms = [
    // along the top, the longest
    [[[-6.6, 3.9], [-4.2, 3.20], [-2.0, 2.45], [0.4, 2.50], [2.6, 2.92], [4.6, 2.50]], 1.40, -1, 1.20, 1.35, -1,
    5.75, 0.22],
    // through the middle
    [[[-6.4, 2.6], [-4.9, 1.60], [-3.8, 0.30], [-2.9, -1.05], [-1.8, -1.55]], 1.30, 1, 1.16, 1.35, 1, 4.45, 0.24],
    // down the left edge
    [[[-6.6, -0.2], [-5.7, -1.4], [-5.1, -2.7], [-4.4, -3.85], [-3.5, -4.25]], 1.00, 1, 0.95, 1.3, 1, 1.2, 0.22],
    // a whip between the first two
    [[[-5.2, 3.0], [-3.0, 1.70], [-1.4, 1.18], [0.2, 0.82], [1.6, 1.02], [2.5, 1.20]], 0.80, -1, 0.42, 1.1, -1, 3.5,
    0.10],
];

module bare_arms() {
    for (arm = arms)
        tentacle(arm[0], arm[1], arm[2], arm[3], arm[4]);
    // the body where they meet
    contour([[-6.6, 5], [-6.6, 5], [-6.6, -0.5], [-6.6, -0.5], [-5.5, 0.0], [-5.0, 0.6], [-3.7, 1.70],
             [-2.4, 2.2], [-2.4, 3.3], [-1.8, 4.2], [-1.4, 5], [-1.4, 5]]);
}

module cluster() {
    bare_arms();
    intersection() { // webs where the arms part
        fillet(0.16) bare_arms();
        translate([-6.6, 0.5]) square([6.2, 4.5]);
    }
    for (arm = arms)
        suckers(arm[0], arm[1], arm[2], arm[3], arm[4], arm[5], arm[6], arm[7]);
}

silhouette(-0.02)
    intersection() {
        cluster();
        square([2 * 6.6, 2 * 4.95], center = true);
    }
