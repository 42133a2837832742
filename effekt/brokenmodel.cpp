// SPDX-License-Identifier: MIT
#include "effekt/brokenmodel.h"

#include "kore/reportedplaces.h"

#include <cassert>
#include <cstdlib>

namespace effect {

namespace {

constexpr unsigned int scatter_seed = 215517;

void draw_values(BrokenModel::Values& values, BrokenModel::ValueSetInterface& set) {
    values.turn.x = set.set(0);
    values.turn.y = set.set(1);
    values.turn.z = set.set(2);
    values.shift.x = set.set(3);
    values.shift.y = set.set(4);
    values.shift.z = set.set(5);
}

} // namespace

float BrokenModel::DefaultSet::set(int index) {
    switch (index) {
    case 0:
    case 1:
    case 2:
        return s(20.0f);
    case 3:
    case 4:
        return s(3.0f);
    case 5:
        return s(5.0f);
    default:
        return 1.0f;
    }
}

float BrokenModel::DefaultSet::s(float f) {
    int const n = static_cast<int>((f + f) * 100);
    assert(n != 0);
    return static_cast<float>(std::rand() % n) / 100 - f;
}

BrokenModel::BrokenModel(kore::AscModel_ptr models, std::string const& model_name, std::string const& file_name) {
    models->LoadModelFull(file_name.empty() ? model_name + ".asc" : file_name);
    myModel = models->ModelByNameFull(model_name);
    KORE_ASSERT_AT(myModel.get(), kore::places::broken_model);
    // Deliberate: the same scatter on every run, and for every broken model.
    std::srand(scatter_seed);
    DefaultSet defaults;
    myValues.resize(myModel->count);
    ResetValues(&defaults);
}

void BrokenModel::ResetValues(ValueSetInterface* set) {
    KORE_ASSERT_AT(set, kore::places::broken_model_reset);
    for (Values& values : myValues) draw_values(values, *set);
}

void BrokenModel::UpdateLogic(kore::StateData const& state) {
    UpdateBlink();
    if (myDirection < 0) {
        UpdateBreaking(state.time);
    } else {
        UpdateClosing(state.time);
    }
}

void BrokenModel::UpdateBreaking(float t) {
    if (myState == Requested) {
        myState = Running;
        myBreakStart = t;
        myDrawWireframe = true;
    }
    if (myState == Running) myAmount = t - myBreakStart; // without end: the pieces fly on
}

void BrokenModel::UpdateClosing(float t) {
    if (myState == Idle) {
        myDrawWireframe = true;
        myAmount = myTransitionTime;
    }
    if (myState == Requested) {
        myState = Running;
        myBreakStart = t;
    }
    if (myState == Running) {
        myAmount = myTransitionTime - (t - myBreakStart);
        if (myAmount <= 0) {
            // Whole again, and the next Break breaks it apart.
            myAmount = 0;
            myDrawWireframe = false;
            myState = Idle;
            myDirection = -1;
        }
    }
}

void BrokenModel::MovePiece(Values const& values) const {
    glPushMatrix();
    glTranslatef(myAmount * values.shift.x, myAmount * values.shift.y, myAmount * values.shift.z);
    glPushMatrix();
    glRotatef(myAmount * values.turn.x, 1, 0, 0);
    glRotatef(myAmount * values.turn.y, 0, 1, 0);
    glRotatef(myAmount * values.turn.z, 0, 0, 1);
}

void BrokenModel::InternalDraw() {
    bool const moved = myState == Running || myDirection >= 1;
    bool const wireframe = myDrawWireframe || myKeepWireframe;
    kore::SingleAscModelFull const& model = *myModel;
    float const grey = Grey();
    float const negative_grey = NegativeGrey();

    glPushMatrix();
    glScalef(myScale.x, myScale.y, myScale.z);
    glPushMatrix();
    for (unsigned int i = 0; i < model.count; ++i) {
        if (moved) MovePiece(myValues[i]);
        if (myDrawSolid) {
            Issue(grey);
            glCallList(model.face_models[i]);
        }
        if (wireframe) {
            Issue(negative_grey);
            glCallList(model.face_wireframes[i]);
        }
        if (moved) {
            glPopMatrix();
            glPopMatrix();
        }
    }
    glPopMatrix();
    glPopMatrix();
}

void BrokenModel::Blink(BlinkerType const& type, int const& value) {
    BlinkingWireframe::Blink(type, value);
    if (type == Break) myState = Requested;
}

} // namespace effect
