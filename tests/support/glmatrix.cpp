// SPDX-License-Identifier: MIT
// The matrix calls of the stand-in: OpenGL 1.1, section 2.10, and GLU 1.2, chapter 4.

#include "tests/support/glstate.h"

#include <GL/glu.h>
#include <cmath>

namespace gl::detail {

namespace {

constexpr double degrees = 3.14159265358979323846 / 180;

/// Multiplies onto the current matrix, unless inside a primitive.
void multiply_top(std::string_view call, Matrix const& m) {
    if (state().in_primitive) {
        raise("INVALID_OPERATION", call);
        return;
    }
    Matrix& top = state().Stack().back();
    top = multiply(top, m);
}

struct Vector {
    double x, y, z;
};

Vector cross(Vector a, Vector b) { return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x}; }

Vector normal(Vector v) {
    double const length = std::sqrt(v.x * v.x + v.y * v.y + v.z * v.z);
    return length == 0 ? v : Vector{v.x / length, v.y / length, v.z / length};
}

} // namespace

Matrix identity() { return {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}; }

Matrix multiply(Matrix const& a, Matrix const& b) {
    Matrix product{};
    for (std::size_t column = 0; column < 4; ++column) {
        for (std::size_t row = 0; row < 4; ++row) {
            for (std::size_t k = 0; k < 4; ++k) product[column * 4 + row] += a[k * 4 + row] * b[column * 4 + k];
        }
    }
    return product;
}

} // namespace gl::detail

using namespace gl::detail;
using gl::Matrix;

extern "C" {

void glMatrixMode(GLenum mode) {
    if (note("MatrixMode", {}, word(mode))) state().mode = mode;
}

void glLoadIdentity() {
    if (!note("LoadIdentity")) return;
    if (state().in_primitive) return raise("INVALID_OPERATION", "LoadIdentity");
    state().Stack().back() = identity();
}

void glPushMatrix() {
    if (!note("PushMatrix")) return;
    if (state().in_primitive) return raise("INVALID_OPERATION", "PushMatrix");
    auto& stack = state().Stack();
    std::size_t const limit = state().mode == GL_PROJECTION ? stack_limit_projection : stack_limit_model_view;
    if (stack.size() == limit) return raise("STACK_OVERFLOW", "PushMatrix");
    stack.push_back(stack.back());
}

void glPopMatrix() {
    if (!note("PopMatrix")) return;
    if (state().in_primitive) return raise("INVALID_OPERATION", "PopMatrix");
    auto& stack = state().Stack();
    if (stack.size() == 1) return raise("STACK_UNDERFLOW", "PopMatrix");
    stack.pop_back();
}

void glTranslatef(GLfloat x, GLfloat y, GLfloat z) {
    if (!note("Translate", {x, y, z})) return;
    Matrix m = identity();
    m[12] = x;
    m[13] = y;
    m[14] = z;
    multiply_top("Translate", m);
}

void glScalef(GLfloat x, GLfloat y, GLfloat z) {
    if (!note("Scale", {x, y, z})) return;
    multiply_top("Scale", {x, 0, 0, 0, 0, y, 0, 0, 0, 0, z, 0, 0, 0, 0, 1});
}

void glRotatef(GLfloat angle, GLfloat ax, GLfloat ay, GLfloat az) {
    if (!note("Rotate", {angle, ax, ay, az})) return;
    auto const [x, y, z] = normal({ax, ay, az});
    double const c = std::cos(angle * degrees);
    double const s = std::sin(angle * degrees);
    double const d = 1 - c;
    multiply_top("Rotate", {x * x * d + c, y * x * d + z * s, x * z * d - y * s, 0, x * y * d - z * s, y * y * d + c,
                            y * z * d + x * s, 0, x * z * d + y * s, y * z * d - x * s, z * z * d + c, 0, 0, 0, 0, 1});
}

void glFrustum(GLdouble l, GLdouble r, GLdouble b, GLdouble t, GLdouble n, GLdouble f) {
    if (!note("Frustum", {l, r, b, t, n, f})) return;
    multiply_top("Frustum", {2 * n / (r - l), 0, 0, 0, 0, 2 * n / (t - b), 0, 0, (r + l) / (r - l), (t + b) / (t - b),
                             -(f + n) / (f - n), -1, 0, 0, -2 * f * n / (f - n), 0});
}

void gluLookAt(GLdouble ex, GLdouble ey, GLdouble ez, GLdouble cx, GLdouble cy, GLdouble cz, GLdouble ux, GLdouble uy,
               GLdouble uz) {
    if (!note("LookAt", {ex, ey, ez, cx, cy, cz, ux, uy, uz})) return;
    Vector const f = normal({cx - ex, cy - ey, cz - ez});
    Vector const s = normal(cross(f, {ux, uy, uz}));
    Vector const u = cross(s, f);
    Matrix turn = {s.x, u.x, -f.x, 0, s.y, u.y, -f.y, 0, s.z, u.z, -f.z, 0, 0, 0, 0, 1};
    Matrix move = identity();
    move[12] = -ex;
    move[13] = -ey;
    move[14] = -ez;
    multiply_top("LookAt", multiply(turn, move));
}

} // extern "C"
