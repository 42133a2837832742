// SPDX-License-Identifier: MIT
#include "effekt/simpletransition.h"

#include <GL/gl.h>

namespace effect {

SimpleTransition::SimpleTransition() : mySquare(glGenLists(1)) {
    constexpr float half = 7.5f;
    constexpr float z = 0.1f;
    glNewList(mySquare, GL_COMPILE);
    glBegin(GL_QUADS);
    glVertex3f(-half, -half, z);
    glVertex3f(-half, half, z);
    glVertex3f(half, half, z);
    glVertex3f(half, -half, z);
    glEnd();
    glEndList();
}

void SimpleTransition::UpdateLogic(kore::StateData const& state) {
    float const t = state.time;
    if (myStart < 0) myStart = t;
    if (t >= myStart + myTime) return;
    float const f = (t - myStart) / myTime;
    myAlpha = myDirection == 1 ? f : 1 - f;
}

void SimpleTransition::InternalDraw() {
    glColor4f(myColor.red, myColor.green, myColor.blue, myAlpha);
    glPushMatrix();
    glTranslatef(0, 0, -2);
    glCallList(mySquare);
    glPopMatrix();
}

} // namespace effect
