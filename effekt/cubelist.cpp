// SPDX-License-Identifier: MIT
#include "effekt/cubelist.h"

#include <GL/gl.h>

namespace effect {

unsigned int compile_cube() {
    constexpr float n = -0.5f;
    constexpr float p = 0.5f;
    constexpr float faces[6][4][3] = {
        {{n, n, n}, {n, p, n}, {p, p, n}, {p, n, n}}, // back
        {{n, n, p}, {n, p, p}, {p, p, p}, {p, n, p}}, // front
        {{n, n, n}, {n, p, n}, {n, p, p}, {n, n, p}}, // left
        {{p, n, n}, {p, p, n}, {p, p, p}, {p, n, p}}, // right
        {{n, n, p}, {n, n, n}, {p, n, n}, {p, n, p}}, // bottom
        {{n, p, p}, {n, p, n}, {p, p, n}, {p, p, p}}, // top
    };
    unsigned int const list = glGenLists(1);
    glNewList(list, GL_COMPILE);
    glBegin(GL_QUADS);
    for (auto const& face : faces) {
        for (auto const& corner : face) glVertex3f(corner[0], corner[1], corner[2]);
    }
    glEnd();
    glEndList();
    return list;
}

} // namespace effect
