// SPDX-License-Identifier: MIT
// The poster beside the dancers: every line set to one width.
use <lib/lettering.scad>

width = 6.4; // of the column
left = -4.1;
top = 4;

// Height, space below, letters; a caption is followed by a rule from `rule` (from the column's left edge) to the
// right edge.
//   height  below  letters          rule
lines = [
    [1.36,   0.36,  "HARD SILENCE"],
    [0.30,   0.74,  "",              0],
    [0.90,   0.26,  "CODE",          1.91],
    [2.35,   0.78,  "QUILLON"],
    [0.90,   0.26,  "MUSIC",         2.25],
    [2.35,   0.78,  "QUILLON"],
    [0.90,   0.26,  "MODELS",        2.81],
    [2.50,   0,     "QUILLON"],
];
rule_height = 0.30;

function sum(values, i = 0) = i == len(values) ? 0 : values[i] + sum(values, i + 1);
function foot(i) = top - sum([for (k = [0:i]) lines[k][0] + (k < i ? lines[k][1] : 0)]);

linear_extrude(height = 1) for (i = [0:len(lines) - 1]) translate([left, foot(i)]) line(lines[i]);

module line(row) {
    caption = len(row) == 4;
    if (caption && row[2] != "") resize([row[3] - 0.38, row[0]]) word(row[2], row[0], spacing = 1.1, curve = 32);
    if (caption) translate([row[3], (row[0] - rule_height) / 2]) square([width - row[3], rule_height]);
    if (!caption) resize([width, row[0]]) word(row[2], row[0], spacing = 1.05, curve = 48);
}

module children();
