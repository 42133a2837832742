// SPDX-License-Identifier: MIT
#include "tools/rehearse/callcount.h"

#include <GL/gl.h>
#include <GL/glu.h>

namespace {

unsigned long calls = 0;

} // namespace

unsigned long issued_calls() { return calls; }

// The linker turns a call of glBegin into one of __wrap_glBegin, and __real_glBegin into the driver's.
// NOLINTBEGIN(*-reserved-identifier,*-macro-usage)
#define COUNTED(name, parameters, arguments)                                                                           \
    extern "C" void __real_##name parameters;                                                                          \
    extern "C" void __wrap_##name parameters;                                                                          \
    extern "C" void __wrap_##name parameters {                                                                         \
        ++calls;                                                                                                       \
        __real_##name arguments;                                                                                       \
    }

COUNTED(glBegin, (GLenum mode), (mode))
COUNTED(glEnd, (), ())
COUNTED(glVertex3f, (GLfloat x, GLfloat y, GLfloat z), (x, y, z))
COUNTED(glVertex3fv, (GLfloat const* v), (v))
COUNTED(glColor3f, (GLfloat r, GLfloat g, GLfloat b), (r, g, b))
COUNTED(glColor3fv, (GLfloat const* v), (v))
COUNTED(glColor4f, (GLfloat r, GLfloat g, GLfloat b, GLfloat a), (r, g, b, a))
COUNTED(glPushMatrix, (), ())
COUNTED(glPopMatrix, (), ())
COUNTED(glLoadIdentity, (), ())
COUNTED(glTranslatef, (GLfloat x, GLfloat y, GLfloat z), (x, y, z))
COUNTED(glScalef, (GLfloat x, GLfloat y, GLfloat z), (x, y, z))
COUNTED(glRotatef, (GLfloat a, GLfloat x, GLfloat y, GLfloat z), (a, x, y, z))
COUNTED(glCallList, (GLuint list), (list))
COUNTED(glClear, (GLbitfield mask), (mask))
COUNTED(glClearColor, (GLclampf r, GLclampf g, GLclampf b, GLclampf a), (r, g, b, a))
COUNTED(glLineWidth, (GLfloat width), (width))
COUNTED(glEnable, (GLenum what), (what))
COUNTED(glDisable, (GLenum what), (what))
COUNTED(gluLookAt,
        (GLdouble ex, GLdouble ey, GLdouble ez, GLdouble lx, GLdouble ly, GLdouble lz, GLdouble ux, GLdouble uy,
         GLdouble uz),
        (ex, ey, ez, lx, ly, lz, ux, uy, uz))
// NOLINTEND(*-reserved-identifier,*-macro-usage)
