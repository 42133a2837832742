// SPDX-License-Identifier: MIT
#pragma once

namespace kore {

/// Which sides of a face are drawn as lines.
struct DrawnEdges {
    bool ab;
    bool bc;
    bool ca;
};

/// The rule by which a face's edge flags count.
/// @param flags  3 ints, the flags AB, BC, CA as a mesh file has them: 1 draws, anything else does not
constexpr DrawnEdges drawn_edges(int const* flags) {
    // Deliberate: CA is drawn by the flag of BC; its own is ignored.
    return {flags[0] == 1, flags[1] == 1, flags[1] == 1};
}

} // namespace kore
