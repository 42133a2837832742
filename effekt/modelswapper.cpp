#include "effekt/modelswapper.h"

#include "kore/ascmodel.h"
#include "kore/report.h"

namespace effect {

ModelSwapper::ModelSwapper(std::string const& name) {
    kore::AscModel m("data/");
    std::string const f = name + ".asc";
    KORE_ASSERT_AT(m.LoadModel(f) >= 0, "effekt/modelswapper.cpp", 19,
                   "effect::ModelSwapper::ModelSwapper(const string&)");
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
