// SPDX-License-Identifier: MIT
#include "effekt/flashbackground.h"

namespace effect {

namespace {

unsigned int compile_tile() {
    unsigned int const list = glGenLists(1);
    glNewList(list, GL_COMPILE);
    glBegin(GL_QUADS);
    glVertex3f(-50, -50, 0);
    glVertex3f(-50, 50, 0);
    glVertex3f(50, 50, 0);
    glVertex3f(50, -50, 0);
    glEnd();
    glEndList();
    return list;
}

} // namespace

FlashBackground::FlashBackground() : myTile(compile_tile()), myBlocks(std::size_t{tiles} * tiles, Block(1.0f)) {}

void FlashBackground::Draw() {
    kore::Vector3<float> const& pos = GetPos();
    glTranslatef(pos.x, pos.y, pos.z);
    InternalDraw();
}

void FlashBackground::InternalDraw() {
    float const grey = Grey();
    for (int i = 0; i < tiles; ++i) {
        for (int j = 0; j < tiles; ++j) {
            glPushMatrix();
            glTranslatef(static_cast<float>(j * 100 - 1450), static_cast<float>(i * 100 - 1450), 0);
            glRotatef(myLevel * 180, 0, 1, 0);
            glRotatef(myLevel * 360, 1, 0, 0);
            Issue(grey);
            glCallList(myTile);
            glPopMatrix();
        }
    }
    glPushMatrix();
    glTranslatef(0, 0, -100);
    glScalef(50, 50, 1);
    drawNegativeColor();
    glCallList(myTile);
    glPopMatrix();
}

void FlashBackground::UpdateLogic(kore::StateData const& state) {
    UpdateBlink();
    if (myState == Requested) {
        myFlipStart = state.time;
        myState = Running;
    }
    if (myState != Running) return;

    float const p = (state.time - myFlipStart) / myDuration;
    if (!myFlipBack) {
        myLevel = p;
        if (myLevel >= 1) {
            myLevel = 1;
            myState = Idle;
        }
    } else {
        myLevel = 1 - p;
        if (myLevel <= 0) {
            myLevel = 0;
            myState = Idle;
        }
    }
    for (Block& block : myBlocks) block.level = myLevel;
}

void FlashBackground::Blink(BlinkerType const& type, int const& value) {
    Blinking::Blink(type, value);
    if (type == Flip) {
        myFlipBack = value == 1;
        myState = Requested;
    }
}

} // namespace effect
