// SPDX-License-Identifier: MIT
// The woman with the pistol: a wide stance, weight on her right leg, right hand on the raised hip, head
// in profile towards the pistol that she holds upright. Seen in two halves that must read alone:
// y -4.9 to -0.3 (the legs as a gate) and y 0.3 to 4.9 (half-length portrait).
use <lib/figure.scad>
include <lib/anatomy.scad>
use <lib/pistol.scad>

// The figure is shattered and every vertex of the outline makes pieces: the large smooth contours are sampled finely,
// boots, hand and pistol (below) more coarsely.
$tol = 0.0007;
head = 1.17; // height of the head: the unit of the anatomy

// Joints. Left and right are those of the picture.
pelvis     = frame([-0.12, 0.00], -5);
chest      = frame([0.02, 2.26], 4);
skull      = frame([0.10, 3.43], 3, 1.2);
shoulder_l = at(chest, [-0.82, 0.50]);
shoulder_r = at(chest, [0.80, 0.50]);
elbow_l    = [-1.98, 1.72];
wrist_l    = [-1.08, 0.84];
elbow_r    = [1.50, 1.32];
wrist_r    = [1.92, 2.55];
hip_l      = at(pelvis, [-0.44, -0.02]);
hip_r      = at(pelvis, [0.44, -0.02]);
knee_l     = [-1.21, -2.22];
knee_r     = [1.17, -2.36];
ankle_l    = [-1.70, -4.01];
ankle_r    = [1.68, -4.01];
gun        = frame(wrist_r + [-0.28, 0.37], 87, 0.68);

module trunk() {
    contour(concat(
        all_at(skull, [[-0.30, 0.20]]),
        all_at(chest, [[-0.22, 1.10], [-0.25, 0.98], [-0.36, 0.83], [-0.58, 0.73], [-0.84, 0.66], [-0.95, 0.40],
                       [-0.76, 0.05], [-0.74, -0.25], [-0.67, -0.52], [-0.60, -0.80]]),
        all_at(pelvis, [[-0.53, 1.04], [-0.71, 0.62], [-0.89, 0.22], [-0.97, -0.20],
                        [-0.9, -0.5], [0.0, -0.45], [0.9, -0.5], [0.97, -0.22],
                        [0.90, 0.16], [0.76, 0.50], [0.60, 0.82], [0.515, 1.12]]),
        all_at(chest, [[0.555, -0.80], [0.63, -0.58], [0.79, -0.36], [0.86, -0.20], [0.80, 0.0], [0.76, 0.12],
                       [0.95, 0.40], [0.84, 0.66], [0.55, 0.75], [0.36, 0.85], [0.27, 1.00], [0.24, 1.12]]),
        all_at(skull, [[0.15, 0.08]])));
}

module hair() {
    contour(all_at(skull, [[0.355, 0.80], [0.37, 0.93], [0.24, 1.035], [0.0, 1.075], [-0.26, 1.03],
                           [-0.46, 0.90], [-0.53, 0.70], [-0.52, 0.50], [-0.42, 0.28], [-0.3, 0.2],
                           [-0.1, 0.45], [0.1, 0.70]]));
    strand([[-0.40, 0.80, 0.12], [-0.60, 0.96, 0.16], [-0.90, 0.93, 0.21], [-1.16, 0.66, 0.25],
            [-1.30, 0.32, 0.22], [-1.44, 0.04, 0.15], [-1.64, -0.12, 0.07], [-1.86, -0.10, 0.003]]);
    strand([[-0.98, 0.78, 0.16], [-1.13, 0.45, 0.19], [-1.20, 0.12, 0.16], [-1.31, -0.16, 0.10],
            [-1.46, -0.34, 0.05], [-1.62, -0.40, 0.003]]);
    strand([[-0.92, 0.70, 0.08], [-0.98, 0.42, 0.11], [-1.05, 0.12, 0.11], [-1.10, -0.14, 0.07], [-1.10, -0.34, 0.035],
            [-1.18, -0.50, 0.003]]);
}
module strand(points) { place(skull) lock(points); }

// The hand that holds the pistol, in the pistol's frame: fingers round the grip, thumb along the frame.
module gun_hand() {
    contour([[-0.62, -0.28], [-0.42, -0.17], [-0.24, -0.04], [-0.12, 0.03], [0.10, -0.02], [0.28, -0.30],
             [0.37, -0.44], [0.43, -0.50], [0.425, -0.585], [0.37, -0.625], [0.405, -0.68], [0.385, -0.765],
             [0.325, -0.80], [0.35, -0.86], [0.32, -0.945], [0.23, -0.975], [-0.10, -0.96], [-0.36, -0.86],
             [-0.50, -0.72], [-0.66, -0.62]]);
}
module hip_hand() {
    contour([[-0.16, 0.045], [0.00, 0.066], [0.20, 0.105], [0.36, 0.10], [0.50, 0.04], [0.56, -0.06],
             [0.46, -0.14], [0.22, -0.125], [0.00, -0.068], [-0.16, -0.045]]);
}

// A boot to below the knee: its cuff stands off a little, the shaft follows the calf.
module boot(knee, ankle, flip, turn) {
    shaft = [for (row = shin_front) if (row[0] > 0.5) row + [0, 0.01, 0.01]];
    cuff = [0.17, 0.238, 0.222];
    fillet(0.06) {
        limb([knee, ankle], [concat([cuff, cuff, [0.30, 0.236, 0.218], [0.42, 0.210, 0.201]], shaft)], head, flip);
        foot = frame(ankle, flip ? -4 : 4, head, flip);
        place(foot) pump(turn, lean_to(knee, foot));
    }
}

// In a wide stance the flesh between the thighs closes to an arch.
thigh_wide = [for (row = thigh_front) row + [0, 0, 0.22 * pow(max(0, 1 - row[0] / 0.75), 2)]];

module figure() {
    fillet(0.03) {
        fillet(0.13) {
            trunk();
            limb([shoulder_l, elbow_l, wrist_l], [upper_arm, forearm], head, true);
            limb([shoulder_r, elbow_r, wrist_r], [upper_arm, forearm], head);
            limb([hip_l, knee_l, ankle_l], [thigh_wide, shin_front], head, true, [-0.04, -0.02]);
            limb([hip_r, knee_r, ankle_r], [thigh_wide, shin_front], head, false, [0.04, 0.02]);
        }
        place(frame(wrist_l, -56, head)) hip_hand();
        place(gun, $tol = 0.004) gun_hand();
    }
    boot(knee_l, ankle_l, true, 30, $tol = 0.0013);
    boot(knee_r, ankle_r, false, 40, $tol = 0.0013);
    place(skull, $tol = 0.002) head_profile();
    hair();
    place(gun, $tol = 0.004) pistol();
}

silhouette() figure();
