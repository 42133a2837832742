// SPDX-License-Identifier: MIT
// The three rows of the title, one block: flush left and right, the middle row the biggest.
use <lib/lettering.scad>

which = "HARD-title";

// Each row fills its box; the letters are drawn as wide as that takes, so the fit stretches them by a few percent at
// most.
if (which == "QUILLONx-title") slab(1) resize([72, 15]) {
    word("QUILLON", 15, wider = 1.59, spacing = 1.12, curve = 80);
    translate([68.2, 0]) word("X", 7.6, wider = 1.4, curve = 80);
}
if (which == "HARD-title") slab(0.02) resize([1.2, 0.52]) word("HARD", 0.52, wider = 1.4, spacing = 1.06, curve = 80);
if (which == "SILENCE-title") slab(0.1) resize([5.6, 1.16]) word("SILENCE", 1.16, wider = 1.75, spacing = 1.12,
                                               curve = 80);
