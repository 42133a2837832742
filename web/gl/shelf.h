// SPDX-License-Identifier: MIT
#pragma once

#include "web/gl/drawing.h"

#include <span>
#include <vector>

namespace fixedgl {

/// The meshes of lists that were erased in this frame. An equal primitive of a new list takes its mesh back, so that a
/// program may make its lists anew and have nothing to wait for: a driver in another process takes each buffer when it
/// has come so far.
class Shelf {
public:
    /// @param corners  those that the mesh was made of
    void Put(GLenum mode, std::span<Corner const> corners, Mesh const& mesh);

    /// @return the mesh of an equal primitive, which is no longer here; one without an array if there is none
    Mesh Take(GLenum mode, std::span<Corner const> corners);

    /// Deletes what nobody took.
    void Clear(Drawing& drawing);

private:
    struct Kept {
        GLenum mode;
        std::vector<Corner> corners;
        Mesh mesh;
    };

    std::vector<Kept> kept;
    std::size_t next = 0; ///< where the next one is looked for first: lists are made again in the same order
};

} // namespace fixedgl
