// SPDX-License-Identifier: MIT
// The honest floor under a frame: plays the show and writes frames of it as a C program, one call of OpenGL after the
// other with constants for arguments. What that program takes is what the calls take by themselves. Under callgrind its
// instructions are dumped per scene, like those of frame_cost.
//
// usage: straightline EVERY >FILE.c     EVERY: write only one of so many frames

#include "bench/showrun.h"

#include <GL/gl.h>
#include <GL/glu.h>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

bool recording = false;
std::vector<std::string> calls;

/// A constant with all its bits.
std::string text(double value) {
    char digits[64];
    std::snprintf(digits, sizeof digits, "%a", value);
    return digits;
}
std::string text(float value) { return text(static_cast<double>(value)) + "f"; }
std::string text(unsigned int value) { return std::to_string(value) + "u"; }

struct Record {
    char const* name;

    template<typename... Arguments>
    void operator()(Arguments... arguments) const {
        if (!recording) return;
        std::string list;
        ((list += (list.empty() ? "" : ", ") + text(arguments)), ...);
        calls.push_back(std::string(name) + "(" + list + ");");
    }
};

/// Writes a frame as functions; the compiler takes long over very long ones.
/// @return the calls of these functions
std::string write_frame() {
    constexpr std::size_t most_calls = 250;
    static int functions = 0;
    std::string all;
    for (std::size_t i = 0; i < calls.size(); ++i) {
        if (i % most_calls == 0) {
            std::printf("%sstatic void f%d(void) {\n", i == 0 ? "" : "}\n", functions);
            all += "f" + std::to_string(functions++) + "(); ";
        }
        std::printf("%s\n", calls[i].c_str());
    }
    std::printf("}\n");
    return all;
}

} // namespace

// clang-format off
// NOLINTNEXTLINE(bugprone-macro-parentheses): in them it is no declaration
#define RECORDED(name, parameters, arguments) void name parameters { Record{#name} arguments; }

extern "C" {

RECORDED(glBegin, (GLenum mode), (mode))
RECORDED(glEnd, (), ())
RECORDED(glVertex3f, (GLfloat x, GLfloat y, GLfloat z), (x, y, z))
RECORDED(glColor3f, (GLfloat r, GLfloat g, GLfloat b), (r, g, b))
RECORDED(glColor4f, (GLfloat r, GLfloat g, GLfloat b, GLfloat a), (r, g, b, a))
RECORDED(glPushMatrix, (), ())
RECORDED(glPopMatrix, (), ())
RECORDED(glLoadIdentity, (), ())
RECORDED(glTranslatef, (GLfloat x, GLfloat y, GLfloat z), (x, y, z))
RECORDED(glScalef, (GLfloat x, GLfloat y, GLfloat z), (x, y, z))
RECORDED(glRotatef, (GLfloat angle, GLfloat x, GLfloat y, GLfloat z), (angle, x, y, z))
RECORDED(glCallList, (GLuint list), (list))
RECORDED(glLineWidth, (GLfloat width), (width))
RECORDED(glEnable, (GLenum what), (what))
RECORDED(glDisable, (GLenum what), (what))
RECORDED(glClear, (GLbitfield mask), (mask))
RECORDED(glClearColor, (GLclampf r, GLclampf g, GLclampf b, GLclampf a), (r, g, b, a))
RECORDED(gluLookAt, (GLdouble ex, GLdouble ey, GLdouble ez, GLdouble cx, GLdouble cy, GLdouble cz, GLdouble ux,
                     GLdouble uy, GLdouble uz), (ex, ey, ez, cx, cy, cz, ux, uy, uz))
} // extern "C"
// clang-format on

int main(int argc, char** argv) {
    int const every = argc > 1 ? std::atoi(argv[1]) : 0;
    if (every < 1) {
        std::fprintf(stderr, "usage: straightline EVERY >FILE.c\n");
        return 2;
    }
    bench::ShowRun show;
    std::vector<std::string> frames(show.SceneCount());
    std::vector<std::size_t> counts(show.SceneCount());
    std::printf("#include <GL/gl.h>\n#include <GL/glu.h>\n#include <stdio.h>\n#include <valgrind/callgrind.h>\n");
    while (show.Next()) {
        calls.clear();
        recording = show.FrameNumber() % every == 0;
        show.Frame();
        if (!recording) continue;
        frames[show.Scene()] += write_frame();
        counts[show.Scene()] += calls.size();
    }
    std::printf("int main(void) {\n");
    for (std::size_t scene = 0; scene < frames.size(); ++scene) {
        std::printf("CALLGRIND_TOGGLE_COLLECT; %s CALLGRIND_TOGGLE_COLLECT;\n", frames[scene].c_str());
        std::printf("CALLGRIND_DUMP_STATS_AT(\"%s.floor\");\n", show.SceneName(scene));
        std::printf("printf(\"%s,%zu\\n\");\n", show.SceneName(scene), counts[scene]);
    }
    std::printf("}\n");
    return 0;
}
