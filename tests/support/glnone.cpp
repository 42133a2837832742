// SPDX-License-Identifier: MIT
// An OpenGL whose entry points do nothing, not even allocate: only the program's own work remains. A program that
// watches some of the calls defines those itself; its definitions take precedence.

#include <GL/gl.h>
#include <GL/glu.h>

#define WEAK [[gnu::weak]]

extern "C" {

WEAK void glBegin(GLenum) {}
WEAK void glEnd() {}
WEAK void glVertex3f(GLfloat, GLfloat, GLfloat) {}
WEAK void glColor3f(GLfloat, GLfloat, GLfloat) {}
WEAK void glPushMatrix() {}
WEAK void glPopMatrix() {}
WEAK void glLoadIdentity() {}
WEAK void glTranslatef(GLfloat, GLfloat, GLfloat) {}
WEAK void glScalef(GLfloat, GLfloat, GLfloat) {}
WEAK void glRotatef(GLfloat, GLfloat, GLfloat, GLfloat) {}
WEAK void glCallList(GLuint) {}
WEAK void glClear(GLbitfield) {}
WEAK void glClearColor(GLclampf, GLclampf, GLclampf, GLclampf) {}
WEAK void gluLookAt(GLdouble, GLdouble, GLdouble, GLdouble, GLdouble, GLdouble, GLdouble, GLdouble, GLdouble) {}
WEAK void glVertex3fv(GLfloat const*) {}
WEAK void glColor3fv(GLfloat const*) {}
WEAK void glColor4f(GLfloat, GLfloat, GLfloat, GLfloat) {}
WEAK void glNewList(GLuint, GLenum) {}
WEAK void glEndList() {}
WEAK void glDeleteLists(GLuint, GLsizei) {}
WEAK void glClearDepth(GLclampd) {}
WEAK void glEnable(GLenum) {}
WEAK void glDisable(GLenum) {}
WEAK void glDepthMask(GLboolean) {}
WEAK void glHint(GLenum, GLenum) {}
WEAK void glBlendFunc(GLenum, GLenum) {}
WEAK void glMatrixMode(GLenum) {}
WEAK void glShadeModel(GLenum) {}
WEAK void glLineWidth(GLfloat) {}
WEAK void glViewport(GLint, GLint, GLsizei, GLsizei) {}
WEAK void glScissor(GLint, GLint, GLsizei, GLsizei) {}
WEAK void glPushAttrib(GLbitfield) {}
WEAK void glPopAttrib() {}
WEAK void glFrustum(GLdouble, GLdouble, GLdouble, GLdouble, GLdouble, GLdouble) {}
WEAK void glBindTexture(GLenum, GLuint) {}
WEAK void glTexParameterf(GLenum, GLenum, GLfloat) {}
WEAK void glTexParameteri(GLenum, GLenum, GLint) {}
WEAK void glTexImage2D(GLenum, GLint, GLint, GLsizei, GLsizei, GLint, GLenum, GLenum, void const*) {}
WEAK GLint gluBuild2DMipmaps(GLenum, GLint, GLsizei, GLsizei, GLenum, GLenum, void const*) { return 0; }

WEAK GLubyte const* glGetString(GLenum) { return nullptr; }

WEAK GLuint glGenLists(GLsizei range) {
    static GLuint next = 1;
    GLuint const first = next;
    next += static_cast<GLuint>(range);
    return first;
}

} // extern "C"
