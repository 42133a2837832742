// SPDX-License-Identifier: MIT
#include "web/gl/drawing.h"

#include <cstring>

namespace fixedgl {

namespace {

constexpr std::size_t stream_elements = 16384;

constexpr char const* vertex_shader = R"(#version 300 es
precision highp float;
layout(location = 0) in vec4 at;
layout(location = 1) in vec4 to;
layout(location = 2) in vec4 color;
layout(location = 3) in float side;
uniform mat4 place;
uniform bool placed_already;
uniform vec4 pen; // half the viewport (x, y), half a line's width, both in pixels; positions a pixel
out vec4 tint;

// Not by an identity: what is infinite would become no number.
vec4 placed(vec4 v) {
    return placed_already ? v : place[0] * v.x + place[1] * v.y + place[2] * v.z + place[3] * v.w;
}

// Where the way from one end of a line to the other comes in front of the eye; the driver clips the rest.
vec4 in_front(vec4 end, vec4 other) {
    float depth = end.z + end.w;
    float other_depth = other.z + other.w;
    return depth < 0.0 && other_depth > 0.0 ? mix(end, other, depth / (depth - other_depth)) : end;
}

void main() {
    tint = color;
    vec4 p = placed(at);
    if (side != 0.0) {
        vec4 q = placed(to);
        vec4 end = in_front(p, q);
        vec4 other = in_front(q, p);
        vec2 along = (other.xy / other.w - end.xy / end.w) * pen.xy;
        float run = length(along);
        if (run > 0.0) {
            // As the driver rounds positions, so is the offset: both sides of a line are equally far from it then.
            vec2 across = vec2(-along.y, along.x) * (pen.z / run);
            across = round(across * pen.w) / pen.w;
            end.xy += side * across / pen.xy * end.w;
        }
        p = end;
    }
    gl_Position = p;
}
)";

constexpr char const* fragment_shader = R"(#version 300 es
precision highp float;
in vec4 tint;
uniform bool textured;
uniform sampler2D image;
out vec4 pixel;
void main() { pixel = textured ? tint * texture(image, vec2(0.0)) : tint; }
)";

enum Attribute : GLuint { at, to, color, side };

void const* offset(std::size_t bytes) { return reinterpret_cast<void const*>(bytes); } // NOLINT: the driver's way

} // namespace

bool Drawing::Open(Driver const& driver, Lines how) {
    gl = driver;
    lines = how;
    if (!BuildProgram()) return false;
    GLint bits = 8;
    gl.GetIntegerv(GL_SUBPIXEL_BITS, &bits);
    grid = static_cast<float>(1 << bits);
    GLint viewport[4] = {0, 0, 1, 1};
    gl.GetIntegerv(GL_VIEWPORT, viewport);
    streamed = MakeArray(true);
    stream = Batch(stream_elements, lines);
    placed_already = textured = false;
    width = line_scale = 1;
    SetViewport(viewport[2], viewport[3]);
    return true;
}

void Drawing::Close() {
    Delete(streamed);
    gl.DeleteProgram(program);
    stream.Clear();
}

bool Drawing::BuildProgram() {
    program = gl.CreateProgram();
    for (auto const& [kind, text] :
         {std::pair(GL_VERTEX_SHADER, vertex_shader), {GL_FRAGMENT_SHADER, fragment_shader}}) {
        GLuint const shader = gl.CreateShader(static_cast<GLenum>(kind));
        gl.ShaderSource(shader, 1, &text, nullptr);
        gl.CompileShader(shader);
        gl.AttachShader(program, shader);
        gl.DeleteShader(shader);
    }
    gl.LinkProgram(program);
    GLint linked = GL_FALSE;
    gl.GetProgramiv(program, GL_LINK_STATUS, &linked);
    if (linked != GL_TRUE) return false;
    gl.UseProgram(program);
    uniforms = {gl.GetUniformLocation(program, "place"), gl.GetUniformLocation(program, "placed_already"),
                gl.GetUniformLocation(program, "pen"), gl.GetUniformLocation(program, "textured")};
    gl.Uniform1i(uniforms.textured, 0);
    return true;
}

Mesh Drawing::MakeArray(bool with_color) const {
    Mesh mesh;
    gl.GenVertexArrays(1, &mesh.array);
    gl.BindVertexArray(mesh.array);
    gl.GenBuffers(2, mesh.buffers);
    gl.BindBuffer(GL_ARRAY_BUFFER, mesh.buffers[0]);
    gl.BindBuffer(GL_ELEMENT_ARRAY_BUFFER, mesh.buffers[1]);
    constexpr GLsizei stride = sizeof(Vertex);
    gl.VertexAttribPointer(Attribute::at, 4, GL_FLOAT, GL_FALSE, stride, offset(offsetof(Vertex, at)));
    gl.VertexAttribPointer(Attribute::to, 4, GL_FLOAT, GL_FALSE, stride, offset(offsetof(Vertex, to)));
    gl.VertexAttribPointer(Attribute::color, 4, GL_UNSIGNED_BYTE, GL_TRUE, stride, offset(offsetof(Vertex, color)));
    gl.VertexAttribPointer(Attribute::side, 1, GL_FLOAT, GL_FALSE, stride, offset(offsetof(Vertex, side)));
    for (GLuint const attribute : {Attribute::at, Attribute::to, Attribute::side})
        gl.EnableVertexAttribArray(attribute);
    if (with_color) gl.EnableVertexAttribArray(Attribute::color);
    return mesh;
}

void Drawing::Put(GLenum mode, std::span<Corner const> corners, Matrix const& place, Color const* color) {
    std::size_t const all = elements_of(mode, corners.size());
    for (std::size_t in = stream.Put(mode, corners, 0, place, color); in < all;) {
        DrawStream();
        in = stream.Put(mode, corners, in, place, color);
    }
}

void Drawing::DrawStream() {
    SetPlace(nullptr);
    auto const vertices = std::as_bytes(stream.Vertices());
    auto const indices = std::as_bytes(stream.Indices());
    gl.BindVertexArray(streamed.array);
    gl.BindBuffer(GL_ARRAY_BUFFER, streamed.buffers[0]);
    gl.BufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(vertices.size()), vertices.data(), GL_STREAM_DRAW);
    gl.BufferData(GL_ELEMENT_ARRAY_BUFFER, static_cast<GLsizeiptr>(indices.size()), indices.data(), GL_STREAM_DRAW);
    std::size_t from = 0;
    for (Batch::Run const& run : stream.Runs()) {
        gl.DrawElements(run.kind, static_cast<GLsizei>(run.count), GL_UNSIGNED_INT, offset(from * sizeof(GLuint)));
        from += run.count;
    }
    stream.Clear();
}

Mesh Drawing::Keep(GLenum mode, std::span<Corner const> corners) {
    Batch batch(elements_of(mode, corners.size()), lines);
    batch.Put(mode, corners, 0, identity, nullptr);
    Mesh mesh = MakeArray(false);
    auto const vertices = std::as_bytes(batch.Vertices());
    auto const indices = std::as_bytes(batch.Indices());
    gl.BufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(vertices.size()), vertices.data(), GL_STATIC_DRAW);
    gl.BufferData(GL_ELEMENT_ARRAY_BUFFER, static_cast<GLsizeiptr>(indices.size()), indices.data(), GL_STATIC_DRAW);
    mesh.run = batch.Runs().front();
    return mesh;
}

void Drawing::Draw(Mesh const& mesh, Matrix const& place, Color color) {
    Flush();
    SetPlace(&place);
    auto const channel = [&](unsigned int shift) { return static_cast<float>(color >> shift & 255u) / 255; };
    gl.VertexAttrib4f(Attribute::color, channel(0), channel(8), channel(16), channel(24));
    gl.BindVertexArray(mesh.array);
    gl.DrawElements(mesh.run.kind, static_cast<GLsizei>(mesh.run.count), GL_UNSIGNED_INT, nullptr);
}

void Drawing::Delete(Mesh& mesh) {
    if (mesh.array == 0) return;
    gl.DeleteVertexArrays(1, &mesh.array);
    gl.DeleteBuffers(2, mesh.buffers);
    mesh = {};
}

void Drawing::SetLineWidth(float pixels) {
    if (pixels == width) return;
    Flush();
    width = pixels;
    SetPen();
}

void Drawing::ScaleLines(float factor) {
    Flush();
    line_scale = factor;
    SetPen();
}

void Drawing::SetViewport(GLsizei wide, GLsizei high) {
    Flush();
    half_viewport[0] = static_cast<float>(wide) / 2;
    half_viewport[1] = static_cast<float>(high) / 2;
    SetPen();
}

void Drawing::SetTextured(bool on) {
    if (on == textured) return;
    Flush();
    textured = on;
    gl.Uniform1i(uniforms.textured, on);
}

void Drawing::SetPlace(Matrix const* place) {
    bool const already = place == nullptr;
    if (already != placed_already) gl.Uniform1i(uniforms.placed_already, already);
    placed_already = already;
    if (already) return;
    GLfloat values[16];
    std::memcpy(values, place->column, sizeof values);
    gl.UniformMatrix4fv(uniforms.place, 1, GL_FALSE, values);
}

void Drawing::SetPen() {
    float const scaled = line_scale * width;
    if (lines == Lines::Driver) gl.LineWidth(scaled);
    gl.Uniform4f(uniforms.pen, half_viewport[0], half_viewport[1], scaled / 2, grid);
}

} // namespace fixedgl
