// OpenGL and GLU that do nothing at all, not even allocate: for counting what the show itself allocates.

#include <GL/gl.h>
#include <GL/glu.h>

extern "C" {

void glBegin(GLenum) {}
void glEnd() {}
void glVertex3f(GLfloat, GLfloat, GLfloat) {}
void glVertex3fv(GLfloat const*) {}
void glColor3f(GLfloat, GLfloat, GLfloat) {}
void glColor3fv(GLfloat const*) {}
void glColor4f(GLfloat, GLfloat, GLfloat, GLfloat) {}
GLuint glGenLists(GLsizei range) {
    static GLuint next = 1;
    GLuint const first = next;
    next += static_cast<GLuint>(range);
    return first;
}
void glNewList(GLuint, GLenum) {}
void glEndList() {}
void glCallList(GLuint) {}
void glEnable(GLenum) {}
void glDisable(GLenum) {}
void glClear(GLbitfield) {}
void glClearColor(GLclampf, GLclampf, GLclampf, GLclampf) {}
void glClearDepth(GLclampd) {}
void glDepthMask(GLboolean) {}
void glHint(GLenum, GLenum) {}
void glBlendFunc(GLenum, GLenum) {}
void glShadeModel(GLenum) {}
void glLineWidth(GLfloat) {}
void glMatrixMode(GLenum) {}
void glLoadIdentity() {}
void glPushMatrix() {}
void glPopMatrix() {}
void glTranslatef(GLfloat, GLfloat, GLfloat) {}
void glScalef(GLfloat, GLfloat, GLfloat) {}
void glRotatef(GLfloat, GLfloat, GLfloat, GLfloat) {}
void glFrustum(GLdouble, GLdouble, GLdouble, GLdouble, GLdouble, GLdouble) {}
void glBindTexture(GLenum, GLuint) {}
void glTexParameterf(GLenum, GLenum, GLfloat) {}
void glTexParameteri(GLenum, GLenum, GLint) {}
void glTexImage2D(GLenum, GLint, GLint, GLsizei, GLsizei, GLint, GLenum, GLenum, void const*) {}
GLint gluBuild2DMipmaps(GLenum, GLint, GLsizei, GLsizei, GLenum, GLenum, void const*) { return 0; }
void gluLookAt(GLdouble, GLdouble, GLdouble, GLdouble, GLdouble, GLdouble, GLdouble, GLdouble, GLdouble) {}

} // extern "C"
