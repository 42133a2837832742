// SPDX-License-Identifier: MIT
#include "web/gl/shelf.h"

#include <cstring>
#include <utility>

namespace fixedgl {

namespace {

bool are_equal(std::span<Corner const> a, std::span<Corner const> b) {
    return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size_bytes()) == 0;
}

} // namespace

void Shelf::Put(GLenum mode, std::span<Corner const> corners, Mesh const& mesh) {
    kept.push_back({mode, {corners.begin(), corners.end()}, mesh});
}

Mesh Shelf::Take(GLenum mode, std::span<Corner const> corners) {
    for (std::size_t i = 0; i < kept.size(); ++i) {
        Kept& candidate = kept[(next + i) % kept.size()];
        if (candidate.mesh.array == 0 || candidate.mode != mode || !are_equal(candidate.corners, corners)) continue;
        next = (next + i + 1) % kept.size();
        return std::exchange(candidate.mesh, {});
    }
    return {};
}

void Shelf::Clear(Drawing& drawing) {
    for (Kept& left : kept) drawing.Delete(left.mesh);
    kept.clear();
    next = 0;
}

} // namespace fixedgl
