// SPDX-License-Identifier: MIT
// First dancer, from behind: the weight on her right leg, that hip pushed out, the elbow above it raised
// with the hand in her hair, the face turned over the other shoulder.
use <lib/figure.scad>
include <lib/anatomy.scad>

head = 1.10;

// Joints. Left and right are those of the picture.
pelvis     = frame([1.36, 0.06], 10, head);
chest      = frame([1.06, 2.08], -8, head);
skull      = frame([0.90, 3.30], -8, head, true);
shoulder_l = at(chest, [-0.70, 0.42]);
shoulder_r = at(chest, [0.64, 0.60]);
elbow_l    = [-0.30, 1.30];
wrist_l    = [0.14, 0.10];
elbow_r    = [2.60, 3.62];
wrist_r    = [1.50, 3.84];
hip_l      = at(pelvis, [-0.38, -0.02]);
hip_r      = at(pelvis, [0.42, 0.0]);
knee_l     = [1.02, -2.02];
knee_r     = [1.72, -1.98];
ankle_l    = [0.44, -3.60];
ankle_r    = [1.62, -3.82];
foot_l     = frame(ankle_l, 16, head, true);
foot_r     = frame(ankle_r, 0, head);

module trunk() {
    contour(concat(
        all_at(skull, [[0.12, 0.08]]),
        all_at(chest, [[-0.21, 0.98], [-0.26, 0.84], [-0.44, 0.70], [-0.70, 0.60], [-0.80, 0.36],
                       [-0.64, 0.02], [-0.60, -0.28], [-0.52, -0.66]]),
        all_at(pelvis, [[-0.48, 1.00], [-0.54, 0.80], [-0.68, 0.48], [-0.80, 0.18], [-0.84, -0.16],
                        [-0.7, -0.5], [0, -0.46], [0.62, -0.60], [0.79, -0.38], [0.89, -0.12],
                        [0.89, 0.12], [0.78, 0.42], [0.62, 0.70]]),
        all_at(chest, [[0.56, -0.74], [0.52, -0.52], [0.58, -0.22], [0.63, 0.00], [0.67, 0.22], [0.73, 0.39],
                       [0.80, 0.52], [0.78, 0.72],
                       [0.48, 0.80], [0.30, 0.90], [0.24, 1.04]]),
        all_at(skull, [[-0.28, 0.20]])));
}

// A narrow dress to the middle of the thighs; its hem stands off a little.
module dress() {
    hem_l = beside(hip_l, knee_l, 0.56, -0.345 * head);
    hem_r = beside(hip_r, knee_r, 0.54, 0.345 * head);
    contour(concat(
        all_at(pelvis, [[-0.70, 0.2]]),
        [beside(hip_l, knee_l, 0.12, -0.42 * head), beside(hip_l, knee_l, 0.34, -0.385 * head), hem_l, hem_l,
         mix(hem_l, hem_r, 0.5) - [0, 0.05], hem_r, hem_r,
         beside(hip_r, knee_r, 0.34, 0.39 * head), beside(hip_r, knee_r, 0.12, 0.42 * head)],
        all_at(pelvis, [[0.70, 0.2]])));
}

// A bob that flicks out at the nape.
module hair() {
    contour(all_at(skull, [[0.345, 0.78], [0.375, 0.93], [0.24, 1.05], [0.0, 1.08], [-0.28, 1.035], [-0.50, 0.89],
                           [-0.61, 0.66], [-0.61, 0.40], [-0.60, 0.20], [-0.66, 0.03], [-0.80, -0.05], [-0.80, -0.05],
                           [-0.60, -0.12], [-0.42, -0.04], [-0.28, 0.10], [-0.16, 0.16], [-0.08, 0.36], [0.04, 0.50],
                           [0.16, 0.70]]));
}

module figure() {
    fillet(0.03) {
        fillet(0.10) {
            trunk();
            dress();
            limb([shoulder_l, elbow_l, wrist_l], [upper_arm, forearm], head, true);
            limb([shoulder_r, elbow_r, wrist_r], [upper_arm, forearm], head);
            limb([hip_l, knee_l, ankle_l], [thigh_front, shin_front], head, true);
            limb([hip_r, knee_r, ankle_r], [thigh_front, shin_front], head);
        }
        place(foot_l) pump(20, lean_to(knee_l, foot_l));
        place(foot_r) pump(45, lean_to(knee_r, foot_r));
    }
    place(frame(wrist_l, -62, head)) hand(thumb = [14, -10]);
    place(frame(wrist_r, 170, head)) hand();
    place(skull) head_profile();
    hair();
}

silhouette() figure();
