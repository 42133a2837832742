// SPDX-License-Identifier: MIT
// A slim ring with many segments: black on black, its lines keep it apart.
use <lib/tube.scad>

torus(0.88, 0.04, 80, 8);
