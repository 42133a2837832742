// SPDX-License-Identifier: MIT
#pragma once

#include "web/gl/batch.h"

#include <span>

namespace fixedgl {

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
