// SPDX-License-Identifier: MIT
#pragma once

#include "web/gl/driver.h"
#include "web/gl/matrix.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace fixedgl {

/// Red, green, blue and alpha, eight bits each, red first in memory.
using Color = std::uint32_t;

/// One vertex as a program gives it.
struct alignas(16) Corner {
    float x;
    float y;
    float z;
    Color color;
};

/// One vertex as the shader takes it. A line is a rectangle of four of them, each of which knows the other end.
struct Vertex {
    float at[4];
    float to[4]; ///< of lines: the other end
    Color color;
    float side; ///< of lines: 1 or -1; else 0
};

/// How lines are drawn.
enum class Lines {
    Rectangles, ///< as triangles: of any width on every driver, and in one draw call with what is drawn around them
    Driver,     ///< as the driver does: where they alternate with triangles, each run of them takes a draw call
};

/// Triangles and lines to be drawn, in the order in which they were put in: where two are equally deep, the first one
/// stays.
class Batch {
public:
    /// So many of the indices are triangles', or lines'.
    struct Run {
        GLenum kind; ///< GL_TRIANGLES or GL_LINES
        std::size_t count;
    };

    /// @param elements  lines, triangles or quads that it has room for
    Batch(std::size_t elements, Lines lines_) : lines(lines_), vertices(elements * 4), indices(elements * 6) {
        runs.reserve(lines == Lines::Driver ? elements : 1);
    }

    bool IsEmpty() const { return runs.empty(); }
    void Clear() {
        used_vertices = used_indices = 0;
        runs.clear();
    }

    /// Puts as many elements of a primitive in as there are, or as there is room for; what is left of an incomplete
    /// last one is dropped, as the standard has it.
    /// @param mode     GL_LINES, GL_TRIANGLES, GL_QUADS or GL_POLYGON, which must be convex
    /// @param corners  its vertices
    /// @param from     its first element that is not in yet
    /// @param place    where it stands
    /// @param color    of the whole primitive; null for each corner's own
    /// @return the first element that is not in now
    std::size_t Put(GLenum mode, std::span<Corner const> corners, std::size_t from, Matrix const& place,
                    Color const* color);

    std::span<Vertex const> Vertices() const { return {vertices.data(), used_vertices}; }
    std::span<GLuint const> Indices() const { return {indices.data(), used_indices}; }
    std::span<Run const> Runs() const { return runs; }

private:
    void AddRun(GLenum kind, std::size_t count) {
        if (runs.empty() || runs.back().kind != kind) runs.push_back({kind, 0});
        runs.back().count += count;
    }

    Lines lines;
    std::vector<Vertex> vertices;
    std::vector<GLuint> indices;
    std::vector<Run> runs;
    std::size_t used_vertices = 0;
    std::size_t used_indices = 0;
};

/// @return the complete lines, triangles or quads of a primitive of so many corners; for any other mode 0
std::size_t elements_of(GLenum mode, std::size_t corners);

} // namespace fixedgl
