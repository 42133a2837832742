// SPDX-License-Identifier: MIT
#pragma once

#include <GL/gl.h>
#include <sstream>
#include <string>
#include <vector>

/// Sequences of calls that OpenGL refuses, and some at the edge of that.
namespace oddcalls {

struct Sequence {
    char const* name;
    void (*issue)();
};

inline void inside(void (*call)()) {
    glBegin(GL_LINES);
    call();
    glEnd();
}

inline void in_list(void (*calls)(), bool called_inside = false) {
    GLuint const list = glGenLists(1);
    glNewList(list, GL_COMPILE);
    calls();
    glEndList();
    if (called_inside) glBegin(GL_QUADS);
    glCallList(list);
    if (called_inside) glEnd();
}

inline void times(int count, void (*call)()) {
    for (int i = 0; i < count; ++i) call();
}

inline void on_projection(void (*calls)()) {
    glMatrixMode(GL_PROJECTION);
    calls();
    glMatrixMode(GL_MODELVIEW);
}

constexpr GLenum unknown = 0x1234;

// clang-format off
inline constexpr Sequence sequences[] = {
    {"a pop too many",                [] { glPopMatrix(); }},
    {"three pops too many",           [] { times(3, glPopMatrix); }},
    {"31 pushes",                     [] { times(31, glPushMatrix); times(31, glPopMatrix); }},
    {"a push too many",               [] { times(32, glPushMatrix); times(31, glPopMatrix); }},
    {"a projection popped too often", [] { on_projection([] { glPopMatrix(); }); }},
    {"a push too many and a pop too many", [] { times(32, glPushMatrix); times(32, glPopMatrix); }},
    {"a glBegin within a glBegin",    [] { inside([] { glBegin(GL_QUADS); }); }},
    {"a glEnd alone",                 [] { glEnd(); }},
    {"a second glEnd",                [] { inside([] {}); glEnd(); }},
    {"a vertex alone",                [] { glVertex3f(1, 2, 3); }},
    {"no primitive",                  [] { glBegin(unknown); }},
    {"no primitive, and its end",     [] { glBegin(unknown); glEnd(); }},
    {"no primitive within one",       [] { inside([] { glBegin(unknown); }); }},
    {"a colour inside",               [] { inside([] { glColor3f(1, 1, 1); }); }},
    {"a push inside",                 [] { inside(glPushMatrix); }},
    {"a pop inside",                  [] { inside(glPopMatrix); }},
    {"an identity inside",            [] { inside(glLoadIdentity); }},
    {"a translation inside",          [] { inside([] { glTranslatef(1, 2, 3); }); }},
    {"a scale inside",                [] { inside([] { glScalef(1, 2, 3); }); }},
    {"a rotation inside",             [] { inside([] { glRotatef(0, 1, 2, 3); }); }},
    {"a frustum inside",              [] { inside([] { glFrustum(-1, 1, -1, 1, 1, 2); }); }},
    {"a matrix mode inside",          [] { inside([] { glMatrixMode(GL_MODELVIEW); }); }},
    {"a switch inside",               [] { inside([] { glEnable(GL_BLEND); }); }},
    {"an unknown switch inside",      [] { inside([] { glDisable(unknown); }); }},
    {"a clear inside",                [] { inside([] { glClear(GL_COLOR_BUFFER_BIT); }); }},
    {"a clear colour inside",         [] { inside([] { glClearColor(0, 0, 0, 0); }); }},
    {"a clear depth inside",          [] { inside([] { glClearDepth(1); }); }},
    {"a depth mask inside",           [] { inside([] { glDepthMask(GL_TRUE); }); }},
    {"a blend function inside",       [] { inside([] { glBlendFunc(GL_ONE, GL_ZERO); }); }},
    {"a hint inside",                 [] { inside([] { glHint(GL_FOG_HINT, GL_NICEST); }); }},
    {"a shade model inside",          [] { inside([] { glShadeModel(GL_SMOOTH); }); }},
    {"a line width inside",           [] { inside([] { glLineWidth(1); }); }},
    {"a bad line width inside",       [] { inside([] { glLineWidth(-1); }); }},
    {"a viewport inside",             [] { inside([] { glViewport(0, 0, 8, 8); }); }},
    {"scissors inside",               [] { inside([] { glScissor(0, 0, 8, 8); }); }},
    {"attributes inside",             [] { inside([] { glPushAttrib(GL_SCISSOR_BIT); glPopAttrib(); }); }},
    {"a texture inside",              [] { inside([] { glBindTexture(GL_TEXTURE_2D, 0); }); }},
    {"a filter inside",     [] { inside([] { glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST); }); }},
    {"names of lists inside",         [] { inside([] { glGenLists(1); }); }},
    {"a list begun inside",           [] { inside([] { glNewList(1, GL_COMPILE); }); }},
    {"a list ended inside",           [] { inside([] { glEndList(); }); }},
    {"the error asked for inside",    [] { inside([] { glGetError(); }); }},
    {"an unknown switch",             [] { glEnable(unknown); }},
    {"an unknown matrix mode",        [] { glMatrixMode(unknown); }},
    {"an unknown hint",               [] { glHint(unknown, GL_NICEST); }},
    {"a hint of no strength",         [] { glHint(GL_FOG_HINT, unknown); }},
    {"an unknown shade model",        [] { glShadeModel(unknown); }},
    {"an unknown blend factor",       [] { glBlendFunc(unknown, GL_ZERO); }},
    {"a texture of an unknown kind",  [] { glBindTexture(unknown, 0); }},
    {"lines of no width",             [] { glLineWidth(0); }},
    {"lines of a negative width",     [] { glLineWidth(-2); }},
    {"a viewport of negative width",  [] { glViewport(0, 0, -1, 1); }},
    {"scissors of negative height",   [] { glScissor(0, 0, 1, -1); }},
    {"buffers that are not there",    [] { glClear(~GLbitfield{0}); }},
    {"a frustum of no depth",         [] { glFrustum(-1, 1, -1, 1, 2, 2); }},
    {"a frustum behind the eye",      [] { glFrustum(-1, 1, -1, 1, -1, 2); }},
    {"a frustum of no width",         [] { glFrustum(1, 1, -1, 1, 1, 2); }},
    {"attributes popped too often",   [] { glPopAttrib(); }},
    {"attributes pushed too often",   [] { times(17, [] { glPushAttrib(GL_SCISSOR_BIT); }); times(16, glPopAttrib); }},
    {"no names of lists",             [] { glGenLists(0); }},
    {"a negative number of names",    [] { glGenLists(-1); }},
    {"a list of no name",             [] { glNewList(0, GL_COMPILE); }},
    {"a list of an unknown mode",     [] { glNewList(1, unknown); }},
    {"a list within a list",          [] { in_list([] { glNewList(77, GL_COMPILE); }); }},
    {"the end of no list",            [] { glEndList(); }},
    {"a list that is not there",      [] { glCallList(12345); }},
    {"a list number 0",               [] { glCallList(0); }},
    {"a negative number of lists deleted", [] { glDeleteLists(1, -1); }},
    {"a pop too many in a list",      [] { in_list([] { glPopMatrix(); }); }},
    {"a bad width in a list",         [] { in_list([] { glLineWidth(-1); }); }},
    {"a width within a list's lines", [] { in_list([] { inside([] { glLineWidth(1); }); }); }},
    {"no primitive in a list",        [] { in_list([] { glBegin(unknown); }); }},
    {"a lone end in a list",          [] { in_list([] { glEnd(); }); }},
    {"a lone end in a list, inside",  [] { in_list([] { glEnd(); }, true); }},
    {"a primitive's list, inside",    [] { in_list([] { inside([] {}); }, true); }},
    {"a push in a list, inside",      [] { in_list([] { glPushMatrix(); }, true); }},
    {"vertices in a list, inside",    [] { in_list([] { glColor3f(1, 1, 1); glVertex3f(1, 2, 3); }, true); }},
    {"a list that calls itself",      [] { in_list([] { glCallList(1); glPopMatrix(); }); }},
    {"the first of two errors",       [] { glPopMatrix(); glLineWidth(-1); }},
};
// clang-format on

/// Issues them one after another.
/// @return a line each: its name and the errors that glGetError tells after it
inline std::vector<std::string> errors() {
    std::vector<std::string> lines;
    for (Sequence const& sequence : sequences) {
        sequence.issue();
        std::ostringstream line;
        line << sequence.name << ':';
        for (GLenum error = glGetError(); error != GL_NO_ERROR; error = glGetError()) line << ' ' << error;
        lines.push_back(line.str());
    }
    return lines;
}

} // namespace oddcalls
