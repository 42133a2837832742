// SPDX-License-Identifier: MIT
#pragma once

#include "tools/asc/mesh.h"

#include <set>
#include <utility>

namespace asc {

/// An edge as its two vertices: lower index, higher index.
using Edge = std::pair<int, int>;

/// The edges that a viewer should see: borders, edges where faces meet at more than `crease_angle`, and edges
/// where more than two faces meet.
std::set<Edge> creases(Object const& object);

/// The edges that the program draws for the present flags, by the rule of kore/edgerule.h.
std::set<Edge> drawn_edges(Object const& object);

/// Sets the edge flags of every face to its creases and turns its corners so that `drawn_edges` is
/// exactly `creases`: one visible edge goes to AB, two go to BC and CA. The winding stays.
void flag_creases(Object& object);

} // namespace asc
