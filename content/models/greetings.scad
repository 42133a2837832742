// SPDX-License-Identifier: MIT
// The names of the groups greeted: slabs of lettering that tumble away.
use <lib/lettering.scad>

which = "Arbalest";

// "Heavy_Cart" is the name of the object; the viewer reads HEAVY CART.
function shown(name) = str_join([for (c = name) c == "_" ? " " : capital(c)]);
function capital(c) =
    let (at = search(c, "abcdefghijklmnopqrstuvwxyz")) at == [] ? c : "ABCDEFGHIJKLMNOPQRSTUVWXYZ"[at[0]];
function str_join(list, i = 0) = i == len(list) ? "" : str(list[i], str_join(list, i + 1));

slab(0.2) resize([0, 1.04]) word(shown(which), 1.04, spacing = 1.08);
