// SPDX-License-Identifier: MIT
#include "effekt/simplemodel.h"

#include "effekt/modellists.h"

namespace effect {

SimpleModel::SimpleModel(kore::AscModel_ptr models, std::string const& model_name, std::string const& file_name) {
    find_or_load(models, model_name, file_name, myModel, myWireframe, kore::places::simple_model);
}

void SimpleModel::UpdateLogic(kore::StateData const&) { UpdateBlink(); }

void SimpleModel::InternalDraw() {
    glPushMatrix();
    glScalef(myScale.x, myScale.y, myScale.z);
    if (myDrawSolid) {
        drawColor();
        glCallList(myModel);
    }
    if (myDrawWireframe) {
        drawNegativeColor();
        glCallList(myWireframe);
    }
    glPopMatrix();
}

void SimpleModel::Blink(BlinkerType const& type, int const& value) {
    BlinkingWireframe::Blink(type, value);
    if (type == Solid) myDrawSolid = value == 1;
}

} // namespace effect
