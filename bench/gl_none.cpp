// An OpenGL whose entry points do nothing: what is left is the program's own work. Here the calls that frames make.

#include <GL/gl.h>
#include <GL/glu.h>

extern "C" {

void glBegin(GLenum) {}
void glEnd() {}
void glVertex3f(GLfloat, GLfloat, GLfloat) {}
void glColor3f(GLfloat, GLfloat, GLfloat) {}
void glPushMatrix() {}
void glPopMatrix() {}
void glLoadIdentity() {}
void glTranslatef(GLfloat, GLfloat, GLfloat) {}
void glScalef(GLfloat, GLfloat, GLfloat) {}
void glRotatef(GLfloat, GLfloat, GLfloat, GLfloat) {}
void glCallList(GLuint) {}
void glClear(GLbitfield) {}
void glClearColor(GLclampf, GLclampf, GLclampf, GLclampf) {}
void gluLookAt(GLdouble, GLdouble, GLdouble, GLdouble, GLdouble, GLdouble, GLdouble, GLdouble, GLdouble) {}

} // extern "C"
