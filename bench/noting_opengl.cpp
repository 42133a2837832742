// SPDX-License-Identifier: MIT
// An OpenGL that notes what it is called with and does no more: what any layer takes at least that leaves all
// computing to the graphics card. Nothing is checked, not even for room. Calls that are rare do nothing.

#include "bench/nothing.h"

#include <GL/gl.h>
#include <array>

namespace {

struct Note {
    void const* call;
    std::array<float, 4> arguments;
};

constexpr std::size_t most_notes = 1u << 20; // the dearest frame has a tenth
std::array<Note, most_notes> notes;
Note* next = notes.data();

template<auto call, typename... Arguments>
void note(Arguments... arguments) {
    *next++ = {reinterpret_cast<void const*>(call), {arguments...}};
}

} // namespace

void nothing::open() {}
void nothing::end_frame() { next = notes.data(); }

extern "C" {

void glBegin(GLenum mode) { note<glBegin>(static_cast<float>(mode)); }
void glEnd() { note<glEnd>(); }
void glVertex3f(GLfloat x, GLfloat y, GLfloat z) { note<glVertex3f>(x, y, z); }
void glVertex3fv(GLfloat const* v) { note<glVertex3fv>(v[0], v[1], v[2]); }
void glColor3f(GLfloat r, GLfloat g, GLfloat b) { note<glColor3f>(r, g, b); }
void glColor3fv(GLfloat const* v) { note<glColor3fv>(v[0], v[1], v[2]); }
void glColor4f(GLfloat r, GLfloat g, GLfloat b, GLfloat a) { note<glColor4f>(r, g, b, a); }
void glPushMatrix() { note<glPushMatrix>(); }
void glPopMatrix() { note<glPopMatrix>(); }
void glLoadIdentity() { note<glLoadIdentity>(); }
void glTranslatef(GLfloat x, GLfloat y, GLfloat z) { note<glTranslatef>(x, y, z); }
void glScalef(GLfloat x, GLfloat y, GLfloat z) { note<glScalef>(x, y, z); }
void glRotatef(GLfloat angle, GLfloat x, GLfloat y, GLfloat z) { note<glRotatef>(angle, x, y, z); }
void glCallList(GLuint list) { note<glCallList>(static_cast<float>(list)); }
void glEndList() { next = notes.data(); } // lists are made before the first frame

} // extern "C"
