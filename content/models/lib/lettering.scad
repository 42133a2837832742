// Lettering of the show: Bebas Neue Bold, capitals only.
//
// The show's picture is 4/3 as wide as it is high on a square view, so what faces the viewer is drawn at 3/4 of
// its natural width (`narrow`) and comes out right.

narrow = 3 / 4;
face = "Bebas Neue:style=Bold";

// One word in the plane: capitals `height` high on the baseline, starting near x = 0.
//   wider    how much wider than the font draws them the letters get; the upright stems keep their thickness
//   spacing  distance of the letters, 1 as the font has it
//   curve    straight pieces for each curve of an outline
module word(letters, height, wider = 1, spacing = 1, curve = 16) {
    em = 10;           // the size it is drawn at before scaling
    cap = 9.722;       // height of H at that size
    stem = 2.18;       // thickness of its uprights
    fat = (wider - 1) * stem / 2;
    scale([narrow * height / cap, height / cap]) eroded_sideways(fat) scale([wider, 1])
        text(letters, size = em, font = face, spacing = spacing, $fn = curve);
}

// Takes `by` off the left and the right side of a shape: stretched letters get their thin uprights back.
module eroded_sideways(by) {
    if (by == 0) children();
    else intersection() {
        translate([by, 0]) children();
        translate([-by, 0]) children();
    }
}

// A slab of lettering `depth` thick.
module slab(depth) {
    linear_extrude(height = depth) children();
}
