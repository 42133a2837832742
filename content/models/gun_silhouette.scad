// SPDX-License-Identifier: MIT
// The big gun: a silenced pistol, muzzle to the left, 8 wide and 5 high on the mesh, centred.
use <lib/figure.scad>
use <lib/pistol.scad>

tube   = 1.56;              // length of the silencer, decimetres
left   = -(1.78 + tube);    // extents of the drawing, muzzle to the left
right  = 0.515;
bore   = 0.285;             // height of the barrel's axis
bottom = -1.275;
top    = 0.53;
size   = 5 / (top - bottom);

// A row of slanted slots, each a parallelogram between the heights low and high.
module slots(from, step, count, slant, low, high, width) {
    for (i = [0 : count - 1])
        let (x = from + i * step)
        polygon([[x, low], [x + width, low], [x + width + slant, high], [x + slant, high]]);
}

// The line around the grip's panel, its screws, and the foot of the magazine.
module grip_lines() {
    difference() {
        grip_panel();
        offset(delta = -0.028) grip_panel();
    }
    translate([0.02, -0.50]) circle(0.040, $fn = 16);
    translate([-0.19, -0.94]) circle(0.040, $fn = 16);
    translate([-0.48, -1.145]) square([0.75, 0.022]);
}
module grip_panel() {
    contour([[-0.02, -0.34], [0.13, -0.37], [0.205, -0.47], [0.16, -0.70], [0.07, -0.98], [0.04, -1.06],
             [-0.03, -1.085], [-0.26, -1.085], [-0.32, -1.03], [-0.28, -0.76], [-0.17, -0.50], [-0.10, -0.38]]);
}

module gun() {
    difference() {
        union() {
            pistol();
            silencer(tube);
        }
        slots(-0.24, 0.075, 6, 0.05, 0.19, 0.385, 0.036);       // serrations to pull the slide by
        slots(1.33, 0.075, 4, 0.05, 0.19, 0.385, 0.036);
        slots(1.20, 0.13, 3, 0, -0.07, -0.015, 0.06);           // rail below the barrel
        rounded(0.02) translate([0.50, 0.305]) square([0.48, 0.08]); // ejection port
        translate([-0.30, 0.130]) square([2.1, 0.018]);         // gap between slide and frame
        for (x = [1.98, 2.06, 1.78 + tube - 0.12, 1.78 + tube - 0.20]) // rings of the silencer
            translate([x, bore - 0.19]) square([0.032, 0.38]);
        grip_lines();
    }
}

silhouette() scale(size) translate([-(left + right) / 2, -(top + bottom) / 2]) mirror([1, 0]) gun();
