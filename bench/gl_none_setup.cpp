// The calls that only the set-up makes, or nothing in the show; they do nothing.

#include <GL/gl.h>
#include <GL/glu.h>

extern "C" {

void glVertex3fv(GLfloat const*) {}
void glColor3fv(GLfloat const*) {}
void glColor4f(GLfloat, GLfloat, GLfloat, GLfloat) {}
void glNewList(GLuint, GLenum) {}
void glEndList() {}
void glClearDepth(GLclampd) {}
void glEnable(GLenum) {}
void glDisable(GLenum) {}
void glDepthMask(GLboolean) {}
void glHint(GLenum, GLenum) {}
void glBlendFunc(GLenum, GLenum) {}
void glMatrixMode(GLenum) {}
void glShadeModel(GLenum) {}
void glLineWidth(GLfloat) {}
void glViewport(GLint, GLint, GLsizei, GLsizei) {}
void glFrustum(GLdouble, GLdouble, GLdouble, GLdouble, GLdouble, GLdouble) {}
void glBindTexture(GLenum, GLuint) {}
void glTexParameterf(GLenum, GLenum, GLfloat) {}
void glTexParameteri(GLenum, GLenum, GLint) {}
void glTexImage2D(GLenum, GLint, GLint, GLsizei, GLsizei, GLint, GLenum, GLenum, void const*) {}
GLint gluBuild2DMipmaps(GLenum, GLint, GLsizei, GLsizei, GLenum, GLenum, void const*) { return 0; }

GLuint glGenLists(GLsizei range) {
    static GLuint next = 1;
    GLuint const first = next;
    next += static_cast<GLuint>(range);
    return first;
}

} // extern "C"
