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

/// A primitive that the driver keeps; see Drawing::Keep.
struct Mesh {
    GLuint array = 0; ///< 0 for none
    GLuint buffers[2] = {0, 0};
    Batch::Run run{};
};

/// What the driver is told to draw. One shader does it all: a vertex is transformed by one matrix, a line made as wide
/// as it is to be, at right angles to itself on the screen (OpenGL 1.3, section 3.4.4, antialiasing by samples).
class Drawing {
public:
    /// Makes shader and buffers on the current context.
    /// @return false if the driver refuses the shader
    bool Open(Driver const& driver, Lines how);

    /// Deletes them; the context must still be current.
    void Close();

    Driver const& GL() const { return gl; }

    /// Draws a primitive with the next Flush, or before; for the arguments see Batch::Put.
    void Put(GLenum mode, std::span<Corner const> corners, Matrix const& place, Color const* color);

    /// Has all drawn that was put.
    void Flush() {
        if (!stream.IsEmpty()) DrawStream();
    }

    /// Hands a primitive to the driver for good; for the arguments see Batch::Put.
    Mesh Keep(GLenum mode, std::span<Corner const> corners);
    void Draw(Mesh const& mesh, Matrix const& place, Color color);
    void Delete(Mesh& mesh);

    void SetLineWidth(float pixels);
    void ScaleLines(float factor);                ///< widths from now on
    void SetViewport(GLsizei wide, GLsizei high); ///< pixels
    void SetTextured(bool on);                    ///< by the first texel of the texture that is bound

private:
    struct Uniforms {
        GLint place = -1;
        GLint placed_already = -1;
        GLint pen = -1;
        GLint textured = -1;
    };

    bool BuildProgram();
    Mesh MakeArray(bool with_color) const;
    void DrawStream();
    void SetPlace(Matrix const* place); ///< null where the vertices are transformed already
    void SetPen();

    Driver gl{};
    GLuint program = 0;
    Uniforms uniforms;
    Mesh streamed;
    Lines lines = Lines::Rectangles;
    Batch stream{0, lines};
    bool placed_already = false; ///< what the shader has been told
    bool textured = false;
    float line_scale = 1;
    float width = 1;          ///< of lines, pixels
    float half_viewport[2]{}; ///< pixels
    float grid = 256;         ///< positions a pixel that the driver tells apart
};

} // namespace fixedgl
