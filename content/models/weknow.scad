// SPDX-License-Identifier: MIT
// The words of the intro, one a beat, and the name tag.
use <lib/lettering.scad>

which = "We";

// All words have the same height, 9.6; their widths vary.
if (which == "We") plain("WE");
if (which == "Know") plain("KNOW");
if (which == "What") plain("WHAT");
if (which == "Are") plain("ARE");
if (which == "Doing") plain("DOING");
if (which == "QUILLONx") slab(1.6) resize([30, 9.2]) tag();

module plain(letters) slab(1.2) resize([0, 9.6]) word(letters, 9.6);

// The name with a small x at its foot.
module tag() {
    word("QUILLON", 9.2, spacing = 1.06);
    translate([26.3, 0]) word("X", 4.6);
}
