// Plays the show with an OpenGL that writes down the calls of every frame, to standard output:
// a FrameHead, then its calls.

#include "bench/callstream.h"
#include "bench/showrun.h"

#include <GL/gl.h>
#include <GL/glu.h>
#include <cstdio>
#include <vector>

namespace {

std::vector<bench::Call> calls;

void put(bench::Op op, std::uint32_t name = 0) {
    bench::Call call{op, {}};
    call.name = name;
    calls.push_back(call);
}

void put(bench::Op op, float a, float b, float c, float d = 0) {
    bench::Call call{op, {}};
    call.value[0] = a;
    call.value[1] = b;
    call.value[2] = c;
    call.value[3] = d;
    calls.push_back(call);
}

void put(bench::Op op, double a, double b, double c) {
    put(op, static_cast<float>(a), static_cast<float>(b), static_cast<float>(c));
}

} // namespace

extern "C" {

void glBegin(GLenum mode) { put(bench::Op::Begin, mode); }
void glEnd() { put(bench::Op::End); }
void glVertex3f(GLfloat x, GLfloat y, GLfloat z) { put(bench::Op::Vertex, x, y, z); }
void glColor3f(GLfloat r, GLfloat g, GLfloat b) { put(bench::Op::Color, r, g, b); }
void glPushMatrix() { put(bench::Op::PushMatrix); }
void glPopMatrix() { put(bench::Op::PopMatrix); }
void glLoadIdentity() { put(bench::Op::LoadIdentity); }
void glTranslatef(GLfloat x, GLfloat y, GLfloat z) { put(bench::Op::Translate, x, y, z); }
void glScalef(GLfloat x, GLfloat y, GLfloat z) { put(bench::Op::Scale, x, y, z); }
void glRotatef(GLfloat angle, GLfloat x, GLfloat y, GLfloat z) { put(bench::Op::Rotate, angle, x, y, z); }
void glCallList(GLuint list) { put(bench::Op::CallList, list); }
void glClear(GLbitfield mask) { put(bench::Op::Clear, mask); }
void glClearColor(GLclampf r, GLclampf g, GLclampf b, GLclampf a) { put(bench::Op::ClearColor, r, g, b, a); }
void gluLookAt(GLdouble ex, GLdouble ey, GLdouble ez, GLdouble cx, GLdouble cy, GLdouble cz, GLdouble ux, GLdouble uy,
               GLdouble uz) {
    put(bench::Op::LookAt, ex, ey, ez);
    put(bench::Op::Data, cx, cy, cz);
    put(bench::Op::Data, ux, uy, uz);
}

} // extern "C"

int main() {
    bench::ShowRun show;
    while (show.Next()) {
        calls.clear();
        show.Frame();
        bench::FrameHead const head{static_cast<std::uint32_t>(show.Scene()), static_cast<std::uint32_t>(calls.size())};
        if (std::fwrite(&head, sizeof head, 1, stdout) != 1) return 1;
        if (std::fwrite(calls.data(), sizeof(bench::Call), calls.size(), stdout) != calls.size()) return 1;
    }
    return 0;
}
