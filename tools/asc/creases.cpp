// SPDX-License-Identifier: MIT
#include "tools/asc/creases.h"

#include "kore/edgerule.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace asc {

namespace {

bool coplanar(Object const& object, Side const& a, Side const& b) {
    static double const least = std::cos(crease_angle * std::numbers::pi / 180.0);
    Vec3 const n = normalised(face_normal(object, object.faces[a.face]));
    Vec3 m = normalised(face_normal(object, object.faces[b.face]));
    // Two faces that run along the edge in the same direction have opposite winding.
    if (a.forward == b.forward) m = m * -1.0;
    return dot(n, m) >= least;
}

bool visible(Object const& object, std::vector<Side> const& sides) {
    return sides.size() != 2 || !coplanar(object, sides[0], sides[1]);
}

Edge side_edge(Face const& face, std::size_t slot) { return std::minmax(face.v[slot], face.v[(slot + 1) % 3]); }

void turn_for_drawing(Face& face) {
    int const shown = face.edge[0] + face.edge[1] + face.edge[2];
    if (shown == 0 || shown == 3) return;
    // The odd edge, the only visible or the only hidden one, becomes AB.
    int const alone = shown == 1 ? 1 : 0;
    auto const slot = std::find(face.edge.begin(), face.edge.end(), alone) - face.edge.begin();
    std::rotate(face.v.begin(), face.v.begin() + slot, face.v.end());
    std::rotate(face.edge.begin(), face.edge.begin() + slot, face.edge.end());
}

} // namespace

std::set<Edge> creases(Object const& object) {
    std::set<Edge> result;
    for (auto const& [edge, sides] : edges_of(object)) {
        if (visible(object, sides)) result.insert(edge);
    }
    return result;
}

std::set<Edge> drawn_edges(Object const& object) {
    std::set<Edge> result;
    for (Face const& face : object.faces) {
        kore::DrawnEdges const drawn = kore::drawn_edges(face.edge.data());
        if (drawn.ab) result.insert(side_edge(face, 0));
        if (drawn.bc) result.insert(side_edge(face, 1));
        if (drawn.ca) result.insert(side_edge(face, 2));
    }
    return result;
}

void flag_creases(Object& object) {
    std::set<Edge> const shown = creases(object);
    for (Face& face : object.faces) {
        for (std::size_t slot = 0; slot < 3; ++slot) face.edge[slot] = shown.contains(side_edge(face, slot)) ? 1 : 0;
        turn_for_drawing(face);
    }
}

} // namespace asc
