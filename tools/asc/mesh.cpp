// SPDX-License-Identifier: MIT
#include "tools/asc/mesh.h"

#include <algorithm>
#include <boost/pending/disjoint_sets.hpp>
#include <cmath>
#include <numbers>

namespace asc {

double dot(Vec3 a, Vec3 b) { return a.x * b.x + a.y * b.y + a.z * b.z; }

Vec3 cross(Vec3 a, Vec3 b) { return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x}; }

double length(Vec3 a) { return std::sqrt(dot(a, a)); }

Vec3 normalised(Vec3 a) {
    double const l = length(a);
    return l < 1e-300 ? Vec3{} : a * (1.0 / l);
}

Box box_of(Object const& object) {
    if (object.vertices.empty()) return {};
    Box box{object.vertices.front(), object.vertices.front()};
    for (Vec3 const& p : object.vertices) {
        box.low = {std::min(box.low.x, p.x), std::min(box.low.y, p.y), std::min(box.low.z, p.z)};
        box.high = {std::max(box.high.x, p.x), std::max(box.high.y, p.y), std::max(box.high.z, p.z)};
    }
    return box;
}

namespace {

Vec3 corner(Object const& object, Face const& face, int i) {
    return object.vertices[static_cast<std::size_t>(face.v[static_cast<std::size_t>(i % 3)])];
}

} // namespace

Vec3 face_normal(Object const& object, Face const& face) {
    Vec3 const a = corner(object, face, 0);
    return cross(corner(object, face, 1) - a, corner(object, face, 2) - a);
}

double face_height(Object const& object, Face const& face) {
    double longest = 0.0;
    for (int i = 0; i < 3; ++i) {
        longest = std::max(longest, length(corner(object, face, i + 1) - corner(object, face, i)));
    }
    return longest > 0.0 ? length(face_normal(object, face)) / longest : 0.0;
}

double smallest_angle(Object const& object, Face const& face) {
    double smallest = 180.0;
    for (int i = 0; i < 3; ++i) {
        Vec3 const p = corner(object, face, i);
        Vec3 const u = corner(object, face, i + 1) - p, w = corner(object, face, i + 2) - p;
        smallest = std::min(smallest, std::atan2(length(cross(u, w)), dot(u, w)) * 180.0 / std::numbers::pi);
    }
    return smallest;
}

bool degenerate(Object const& object, Face const& face) {
    auto const& [a, b, c] = face.v;
    return a == b || b == c || c == a || face_height(object, face) <= resolution;
}

Edges edges_of(Object const& object) {
    Edges edges;
    for (std::size_t f = 0; f < object.faces.size(); ++f) {
        for (int slot = 0; slot < 3; ++slot) {
            int const from = object.faces[f].v[static_cast<std::size_t>(slot)];
            int const to = object.faces[f].v[static_cast<std::size_t>((slot + 1) % 3)];
            edges[std::minmax(from, to)].push_back({f, slot, from < to});
        }
    }
    return edges;
}

std::vector<std::vector<std::size_t>> parts_of(Object const& object, Edges const& edges,
                                               std::function<bool(Edges::value_type const&)> const& joins) {
    boost::disjoint_sets_with_storage<> sets(object.faces.size());
    for (auto const& edge : edges) {
        if (!joins(edge)) continue;
        for (Side const& side : edge.second) sets.union_set(edge.second.front().face, side.face);
    }
    std::vector<std::vector<std::size_t>> parts;
    std::map<std::size_t, std::size_t> index; // by the face that represents the part
    for (std::size_t f = 0; f < object.faces.size(); ++f) {
        auto const [at, fresh] = index.emplace(sets.find_set(f), parts.size());
        if (fresh) parts.emplace_back();
        parts[at->second].push_back(f);
    }
    return parts;
}

bool closed(Edges const& edges) {
    return std::all_of(edges.begin(), edges.end(), [](auto const& edge) { return edge.second.size() == 2; });
}

double volume(Object const& object) {
    double sum = 0.0;
    for (Face const& face : object.faces) {
        sum += dot(corner(object, face, 0), cross(corner(object, face, 1), corner(object, face, 2)));
    }
    return sum / 6.0;
}

} // namespace asc
