// SPDX-License-Identifier: MIT
// A stand-in for OpenGL that draws nothing and ends the run at the first call that a driver would refuse: lists within
// lists, vertices outside of a primitive, names never generated. Every float that is passed is read.
// Calls that meshes do not use do nothing (tests/support/glnone.cpp).

#include "fuzz/strictgl.h"

#include "fuzz/check.h"

#include <GL/gl.h>
#include <vector>

namespace {

std::vector<bool> lists(1); // whether compiled, by name; no list has the name 0
GLuint open_list = 0;
bool in_primitive = false;
int vertices = 0; // of the open primitive
int corners = 0;  // of one triangle or line of it

void vertex(GLfloat x, GLfloat y, GLfloat z) {
    fuzz::require(in_primitive, "a vertex stands between Begin and End");
    GLfloat const volatile read[] = {x, y, z};
    static_cast<void>(read[0]);
    ++vertices;
}

} // namespace

namespace strictgl {

bool compiled(unsigned int list) { return list < lists.size() && lists[list]; }

void reset() {
    fuzz::require(!in_primitive, "every Begin has its End");
    fuzz::require(open_list == 0, "every NewList has its EndList");
    lists.assign(1, false);
}

} // namespace strictgl

extern "C" {

GLuint glGenLists(GLsizei range) {
    fuzz::require(range > 0, "at least one list is asked for");
    fuzz::require(!in_primitive, "lists are not generated within a primitive");
    auto const first = static_cast<GLuint>(lists.size());
    lists.resize(lists.size() + static_cast<std::size_t>(range));
    return first;
}

void glNewList(GLuint list, GLenum mode) {
    fuzz::require(open_list == 0 && !in_primitive, "lists do not nest");
    fuzz::require(list != 0 && list < lists.size(), "the list's name was generated");
    fuzz::require(!lists[list], "no list is compiled twice");
    fuzz::require(mode == GL_COMPILE, "lists are compiled, not drawn");
    open_list = list;
}

void glEndList() {
    fuzz::require(open_list != 0 && !in_primitive, "EndList ends a list");
    lists[open_list] = true;
    open_list = 0;
}

void glBegin(GLenum mode) {
    fuzz::require(!in_primitive, "primitives do not nest");
    fuzz::require(mode == GL_TRIANGLES || mode == GL_LINES, "meshes are triangles and lines");
    in_primitive = true;
    corners = mode == GL_TRIANGLES ? 3 : 2;
    vertices = 0;
}

void glEnd() {
    fuzz::require(in_primitive, "End ends a primitive");
    fuzz::require(vertices % corners == 0, "no triangle and no line is left unfinished");
    in_primitive = false;
}

void glVertex3f(GLfloat x, GLfloat y, GLfloat z) { vertex(x, y, z); }
void glVertex3fv(GLfloat const* v) { vertex(v[0], v[1], v[2]); }

} // extern "C"
