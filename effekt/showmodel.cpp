// SPDX-License-Identifier: MIT
#include "effekt/showmodel.h"

#include "effekt/modellists.h"

namespace effect {

namespace {

/// @return f, at most 1; not a number stays not a number
float at_most_one(float f) { return f >= 1 ? 1.0f : f; }

} // namespace

ShowModel::ShowModel(kore::AscModel_ptr models, std::string const& model_name, std::string const& file_name) {
    find_or_load(models, model_name, file_name, myModel, myWireframe, kore::places::show_model);
}

void ShowModel::UpdateLogic(kore::StateData const& state) {
    UpdateBlink();
    float const t = state.time;
    float const start = myStartTime;
    float const swing = myTransitionSpeed;
    if (t >= start && start + swing > t) {
        float const f = at_most_one((t - start) / swing);
        myAngle = -120 * f + 120;
    } else if (t >= start + swing + myShowTime) {
        myLeaving = true;
        float const f = at_most_one((t - (swing + start + myShowTime)) / swing);
        myAngle = -120 * f;
    } else {
        myAngle = 0;
    }
}

void ShowModel::InternalDraw() {
    kore::Vector3<float> const hinge = myLeaving ? myStartPos * -1.0f : myStartPos;
    glPushMatrix();
    glTranslatef(hinge.x, hinge.y, hinge.z);
    glPushMatrix();
    drawColor();
    glRotatef(myAngle, 1, 0, 0);
    glTranslatef(-hinge.x, -hinge.y, -hinge.z);
    // Deliberate: the faces are drawn whatever myDrawSolid says.
    DrawScaled(myModel);
    if (myDrawWireframe) {
        drawNegativeColor();
        DrawScaled(myWireframe);
    }
    glPopMatrix();
    glPopMatrix();
}

void ShowModel::DrawScaled(unsigned int list) const {
    glPushMatrix();
    glScalef(myScale.x, myScale.y, myScale.z);
    glCallList(list);
    glPopMatrix();
}

} // namespace effect
