// SPDX-License-Identifier: MIT
#include "effekt/gyrofuck.h"

namespace effect {

namespace {

constexpr float smallest = 10; // scale
constexpr float range = 30;
constexpr float degrees_per_second = 130;

} // namespace

GyroFuck::GyroFuck(kore::AscModel_ptr models) {
    models->LoadModel("donut2.asc");
    models->ModelByName("donut2", myModel);
    models->WfByName("donut2", myWireframe);
}

void GyroFuck::UpdateLogic(kore::StateData const& state) {
    UpdateBlink();
    myTime = state.time;
    if (state.new_beat && state.beat_count % 2 == 0) {
        myLastSwap = state.time;
        myPhase = myPhase != 0 ? 0 : 1;
    }
    // Deliberate: not clamped, so a breath longer than its period goes beyond both ends.
    float const p = 1 - (state.time - myLastSwap) / myPeriod;
    float const falling = range * p + smallest;
    float const rising = (smallest + range) - range * p;
    myScaleA = myPhase != 0 ? falling : rising;
    myScaleB = myPhase != 0 ? rising : falling;
}

void GyroFuck::DrawRing(float scale) {
    glScalef(scale, scale, scale);
    drawColor();
    glCallList(myModel);
    drawNegativeColor();
    glCallList(myWireframe);
    glPopMatrix();
    glPopMatrix();
}

void GyroFuck::InternalDraw() {
    float const angle = degrees_per_second * myTime;
    glPushMatrix();
    glRotatef(angle, 1, 0.5f, 1);
    glPushMatrix();
    DrawRing(myScaleA);

    glPushMatrix();
    glRotatef(angle, -0.5f, 1, 0.5f);
    glPushMatrix();
    DrawRing(myScaleB);

    glPushMatrix();
    glRotatef(angle, 1, -1, 0.5f);
    DrawRing(myScaleC); // Deliberate: one push, two pops
}

} // namespace effect
