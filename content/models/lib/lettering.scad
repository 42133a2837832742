// SPDX-License-Identifier: MIT
// Lettering of the show: Bebas Neue Bold, capitals only.
//
// The show's picture is 4/3 as wide as it is high on a square view, so what faces the viewer is drawn at 3/4 of
// its natural width (`narrow`) and comes out right.

narrow = 3 / 4;
face = "Bebas Neue:style=Bold";

// One word in the plane: capitals `height` high on the baseline, the first letter's ink at x = 0.
//   wider    how much wider than the font draws them the letters get; the upright stems keep their thickness
//   spacing  distance of the letters, 1 as the font has it
//   curve    straight pieces for each curve of an outline
module word(letters, height, wider = 1, spacing = 1, curve = 16) {
    em = 10;           // the size it is drawn at before scaling
    cap = 9.722;       // height of H at that size
    stem = 0.9;        // of its uprights, 1.53 thick, what is not stretched: wide letters want a little more weight
    fat = (wider - 1) * stem / 2;
    scale([narrow * height / cap, height / cap]) translate([-fat - wider * bearing(letters[0]), 0])
        eroded_sideways(fat) scale([wider, 1])
        text(letters, size = em, font = face, spacing = spacing, $fn = curve);
}

// From the pen to the ink of a letter drawn at size 10: uprights and bowls. Of the others none begins a line that
// must be flush.
function bearing(letter) = search(letter, "CGOQ") == [] ? 0.553 : 0.431;

// Takes `by` off the left and the right side of every part of a shape: stretched letters get their thin uprights back.
module eroded_sideways(by) {
    far = 400; // beyond any line of letters
    if (by == 0) children();
    else difference() {
        square(2 * far, center = true);
        minkowski() {
            difference() {
                square(2.1 * far, center = true);
                children();
            }
            square([2 * by, 0.0005], center = true);
        }
    }
}

// A slab of lettering `depth` thick.
module slab(depth) {
    linear_extrude(height = depth) children();
}
