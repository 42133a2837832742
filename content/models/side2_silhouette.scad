// SPDX-License-Identifier: MIT
// Second dancer, from the side: she leans forward with a hollow back, both hands on the bent knee, and
// throws her head and hair up.
use <lib/figure.scad>
include <lib/anatomy.scad>

head = 1.20;

pelvis   = frame([0.42, 0.46], -42, head); // origin in the hip joint, y up the spine
chest    = frame([1.36, 2.02], -24, head);
skull    = frame([2.02, 3.16], 14, head);
shoulder = at(chest, [-0.04, 0.40]);
elbow    = [1.70, 0.86];
wrist    = [1.93, -0.62];
knee     = [1.78, -1.34];                  // of the bent leg
ankle    = [1.36, -3.75];
hip_back   = [0.36, 0.46];                 // the straight leg behind
knee_back  = [0.28, -1.72];
ankle_back = [-0.08, -3.75];
foot       = frame(ankle, 0, head);
foot_back  = frame(ankle_back, 0, head);

module trunk() {
    contour(concat(
        all_at(skull, [[-0.28, 0.20]]),
        all_at(chest, [[-0.20, 0.82], [-0.36, 0.56], [-0.44, 0.24], [-0.42, -0.06], [-0.37, -0.34]]),
        all_at(pelvis, [[-0.41, 0.74], [-0.435, 0.50], [-0.51, 0.28], [-0.58, 0.04], [-0.57, -0.20], [-0.45, -0.42],
                        [-0.24, -0.50], [0.1, -0.3], [0.36, 0.05], [0.42, 0.32], [0.40, 0.60]]),
        all_at(chest, [[0.24, -0.60], [0.30, -0.36], [0.46, -0.20], [0.55, -0.02], [0.47, 0.20], [0.28, 0.48],
                       [0.14, 0.72]]),
        all_at(skull, [[0.12, 0.08]])));
}

// A short skirt, close over the hips, loose behind.
module skirt() {
    hip = at(pelvis, [0, 0]);
    back = beside(hip_back, knee_back, 0.36, -0.47 * head);
    front = beside(hip, knee, 0.47, 0.36 * head);
    contour(concat(
        all_at(pelvis, [[-0.40, 0.15], [-0.57, -0.10]]),
        [beside(hip_back, knee_back, 0.12, -0.46 * head), back, back,
         beside(hip_back, knee_back, 0.40, -0.18 * head), beside(hip_back, knee_back, 0.38, 0.12 * head),
         beside(hip, knee, 0.46, -0.36 * head), beside(hip, knee, 0.50, 0.0), front, front,
         beside(hip, knee, 0.25, 0.385 * head), beside(hip, knee, 0.10, 0.34 * head)]));
}

module hair() {
    contour(all_at(skull, [[0.355, 0.80], [0.36, 0.94], [0.20, 1.05], [-0.05, 1.08], [-0.32, 1.02], [-0.55, 0.86],
                           [-0.80, 0.72], [-1.05, 0.66], [-1.30, 0.70], [-1.48, 0.80], [-1.48, 0.80],
                           [-1.38, 0.60], [-1.20, 0.46], [-1.34, 0.44], [-1.50, 0.46], [-1.50, 0.46], [-1.30, 0.26],
                           [-1.05, 0.16],
                           [-1.16, 0.08], [-1.28, 0.06], [-1.28, 0.06], [-1.02, -0.06],
                           [-0.76, -0.05], [-0.52, 0.04], [-0.36, 0.15], [-0.2, 0.3], [-0.05, 0.5], [0.1, 0.70]]));
}

module figure() {
    fillet(0.03) {
        fillet(0.08) {
            fillet(0.2) {
                trunk();
                skirt();
                limb([at(pelvis, [0, 0]), knee, ankle], [thigh_side, shin_side], head, bow = [0.04, -0.03]);
            }
            limb([hip_back, knee_back, ankle_back], [thigh_side, shin_side], head, bow = [0.05, -0.06]);
            limb([shoulder, elbow, wrist], [upper_arm, forearm], head, true);
        }
        place(foot) pump(0, lean_to(knee, foot));
        place(foot_back) pump(0, lean_to(knee_back, foot_back));
    }
    place(frame(wrist, -80, head)) hand([[0, -5], [-1, -5], [-2, -6], [-4, -7]], [10, -8]);
    place(skull) head_profile();
    hair();
}

silhouette() figure();
