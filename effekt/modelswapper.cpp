// SPDX-License-Identifier: MIT
#include "effekt/modelswapper.h"

#include "kore/ascmodel.h"
#include "kore/reportedplaces.h"

namespace effect {

ModelSwapper::ModelSwapper(std::string const& name) {
    kore::AscModel m("data/");
    std::string const f = name + ".asc";
    KORE_ASSERT_AT(m.LoadModel(f) >= 0, kore::places::model_swapper);
    m.ModelByName(name, myModel);
    m.WfByName(name, myWireframe);
}

void ModelSwapper::InternalDraw() {
    glPushMatrix();
    drawColor();
    glCallList(myModel);
    drawNegativeColor();
    glCallList(myWireframe);
    glPopMatrix();
}

} // namespace effect
