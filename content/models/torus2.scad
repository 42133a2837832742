// SPDX-License-Identifier: MIT
// The ring of the tunnel and of the fountain: only its lines show, so it has few and long ones.
use <lib/tube.scad>

torus(3.2, 0.42, 28, 8);
