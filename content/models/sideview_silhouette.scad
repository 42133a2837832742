// SPDX-License-Identifier: MIT
// Third dancer, from the side, stretched on her toes: one arm up, head thrown back, the free leg bent
// behind her. Drawn as the audience sees her and mirrored last, for the show turns her about her axis.
use <lib/figure.scad>
include <lib/anatomy.scad>

head = 0.93;

pelvis     = frame([0.92, -0.10], 10, head, true); // origin in the hip joint; forward is to the left
chest      = frame([0.84, 1.46], -16, head, true);
skull      = frame([0.96, 2.36], -38, head, true);
shoulder   = at(chest, [0.02, 0.42]);
elbow      = [0.16, 2.82];
wrist      = [-0.02, 3.82];
elbow_back = [1.74, 1.24];                         // the arm behind her
wrist_back = [2.30, 0.58];
knee       = [0.66, -1.96];                        // of the leg she stands on
ankle      = [0.92, -3.76];
knee_back  = [1.50, -1.86];                        // of the free leg
ankle_back = [2.42, -1.08];
foot       = frame(ankle, 6, head, true);
foot_back  = frame(ankle_back, 147, head, true);

module trunk() {
    contour(concat(
        all_at(skull, [[-0.28, 0.20]]),
        all_at(chest, [[-0.20, 0.82], [-0.36, 0.54], [-0.42, 0.20], [-0.35, -0.15], [-0.26, -0.50]]),
        all_at(pelvis, [[-0.24, 0.80], [-0.34, 0.52], [-0.52, 0.24], [-0.60, -0.04], [-0.52, -0.30],
                        [-0.28, -0.45], [0.1, -0.3], [0.34, 0.05], [0.36, 0.35], [0.29, 0.70]]),
        all_at(chest, [[0.26, -0.55], [0.33, -0.28], [0.48, -0.10], [0.54, 0.06], [0.44, 0.26], [0.26, 0.50],
                       [0.14, 0.72]]),
        all_at(skull, [[0.12, 0.08]])));
}

// A short skirt that swings out behind.
module skirt() {
    contour(all_at(pelvis, [[0.26, 0.72], [0.26, 0.72], [0.35, 0.38], [0.46, 0.02], [0.66, -0.48], [0.66, -0.48],
                            [0.50, -0.52], [0.34, -0.66], [0.14, -0.60],
                            [-0.06, -0.72], [-0.28, -0.58], [-0.48, -0.62], [-0.66, -0.40], [-0.86, -0.38],
                            [-1.02, -0.16], [-1.22, -0.08], [-1.22, -0.08], [-0.80, 0.22], [-0.42, 0.44],
                            [-0.24, 0.72], [-0.24, 0.72]]));
}

module hair() {
    contour(all_at(skull, [[0.355, 0.80], [0.36, 0.94], [0.20, 1.05], [-0.05, 1.08], [-0.32, 1.02], [-0.52, 0.84],
                           [-0.55, 0.60], [-0.42, 0.34], [-0.2, 0.3], [-0.05, 0.5], [0.1, 0.70]]));
    place(skull) lock([[-0.36, 0.84, 0.12], [-0.58, 0.98, 0.14], [-0.84, 0.96, 0.18], [-1.10, 0.76, 0.21],
                       [-1.36, 0.62, 0.18],
                       [-1.66, 0.66, 0.11], [-1.88, 0.82, 0.05], [-2.0, 0.98, 0.003]]);
    place(skull) lock([[-0.90, 0.86, 0.12], [-1.10, 0.62, 0.16], [-1.36, 0.44, 0.14],
                       [-1.64, 0.42, 0.07], [-1.84, 0.52, 0.003]]);
}

module figure() {
    fillet(0.03) {
        fillet(0.06) {
            trunk();
            skirt();
            limb([at(pelvis, [0, 0]), knee, ankle], [thigh_side, shin_side], head, true, [-0.06, 0.05]);
            limb([at(pelvis, [-0.05, 0]), knee_back, ankle_back], [thigh_side, shin_side], head, true);
            limb([shoulder, elbow, wrist], [upper_arm, forearm], head);
            limb([shoulder, elbow_back, wrist_back], [upper_arm, forearm], head);
        }
        place(foot) pointed_foot(lean_to(knee, foot));
        place(foot_back) pointed_foot(lean_to(knee_back, foot_back));
    }
    place(frame(wrist, 98, head)) hand([[5, 2], [0, -4], [-5, -8], [-10, -10]], [24, -10]);
    place(frame(wrist_back, -22, head)) hand();
    place(skull) head_profile();
    hair();
}

silhouette() mirror([1, 0]) translate([-0.22, -0.045]) figure();
