#pragma once

#include "tools/asc/mesh.h"

#include <set>
#include <utility>

namespace asc {

/// An edge by its vertices: lower index, higher index.
using Edge = std::pair<int, int>;

/// The edges that a viewer should see: where a face ends, where faces meet at more than `crease_angle`, and
/// where more than two faces meet.
std::set<Edge> creases(Object const& object);

/// The edges that the program draws for the flags as they stand, by the rule of kore/edgerule.h.
std::set<Edge> drawn_edges(Object const& object);

/// Sets the edge flags of every face to its creases and turns its corners so that `drawn_edges` is
/// exactly `creases`: one visible edge goes to AB, two go to BC and CA. The winding stays.
void flag_creases(Object& object);

} // namespace asc
