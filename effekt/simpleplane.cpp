// SPDX-License-Identifier: MIT
#include "effekt/simpleplane.h"

#include <GL/gl.h>

namespace effect {

SimplePlane::SimplePlane(float width, float height) : myPlane(glGenLists(1)) {
    glNewList(myPlane, GL_COMPILE);
    glBegin(GL_QUADS);
    glVertex3f(-width / 2, -height / 2, 0);
    glVertex3f(-width / 2, height / 2, 0);
    glVertex3f(width / 2, height / 2, 0);
    glVertex3f(width / 2, -height / 2, 0);
    glEnd();
    glEndList();
}

void SimplePlane::InternalDraw() {
    glColor3fv(myColor);
    glCallList(myPlane);
}

void SimplePlane::SetColor(kore::Color<float> const& color) {
    myColor[0] = color.red;
    myColor[1] = color.green;
    myColor[2] = color.blue;
}

} // namespace effect
