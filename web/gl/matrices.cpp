// SPDX-License-Identifier: MIT
// The matrix stacks: OpenGL 1.1, section 2.10.2.

#include "web/gl/state.h"

#include <GL/glu.h>

using namespace fixedgl;

namespace {

Matrix& changed() {
    state.moved = true;
    return state.stack->Top();
}

void translate(float x, float y, float z) {
    Matrix& m = changed();
    m.column[3] = transform(m, x, y, z);
}

} // namespace

extern "C" {

void glMatrixMode(GLenum mode) {
    if (settled<glMatrixMode>(mode)) return;
    if (mode != GL_MODELVIEW && mode != GL_PROJECTION) return raise(GL_INVALID_ENUM);
    state.stack = mode == GL_MODELVIEW ? &state.model_view : &state.projection;
}

void glPushMatrix() {
    if (settled<glPushMatrix>()) return;
    MatrixStack& stack = *state.stack;
    if (stack.top + 1 == stack_limit) return raise(GL_STACK_OVERFLOW);
    stack.matrices[stack.top + 1] = stack.matrices[stack.top];
    ++stack.top;
}

void glPopMatrix() {
    if (settled<glPopMatrix>()) return;
    if (state.stack->top == 0) return raise(GL_STACK_UNDERFLOW);
    --state.stack->top;
    state.moved = true;
}

void glLoadIdentity() {
    if (!settled<glLoadIdentity>()) changed() = identity;
}

void glTranslatef(GLfloat x, GLfloat y, GLfloat z) {
    if (!settled<glTranslatef>(x, y, z)) translate(x, y, z);
}

void glScalef(GLfloat x, GLfloat y, GLfloat z) {
    if (settled<glScalef>(x, y, z)) return;
    Matrix& m = changed();
    m.column[0] *= x;
    m.column[1] *= y;
    m.column[2] *= z;
}

void glRotatef(GLfloat angle, GLfloat x, GLfloat y, GLfloat z) {
    if (!settled<glRotatef>(angle, x, y, z)) rotate(changed(), angle, x, y, z);
}

void glFrustum(GLdouble l, GLdouble r, GLdouble b, GLdouble t, GLdouble n, GLdouble f) {
    if (settled<glFrustum>(l, r, b, t, n, f)) return;
    if (n <= 0 || f <= 0 || n == f || l == r || b == t) return raise(GL_INVALID_VALUE);
    auto const number = [](GLdouble value) { return static_cast<float>(value); };
    Matrix& m = changed();
    m = multiply(m, frustum(number(l), number(r), number(b), number(t), number(n), number(f)));
}

void gluLookAt(GLdouble ex, GLdouble ey, GLdouble ez, GLdouble cx, GLdouble cy, GLdouble cz, GLdouble ux, GLdouble uy,
               GLdouble uz) {
    if (settled<gluLookAt>(ex, ey, ez, cx, cy, cz, ux, uy, uz)) return;
    auto const vector = [](GLdouble x, GLdouble y, GLdouble z) {
        return Four{static_cast<float>(x), static_cast<float>(y), static_cast<float>(z), 0};
    };
    Matrix& m = changed();
    m = multiply(m, look_along(vector(cx - ex, cy - ey, cz - ez), vector(ux, uy, uz)));
    translate(static_cast<float>(-ex), static_cast<float>(-ey), static_cast<float>(-ez));
}

} // extern "C"
