// SPDX-License-Identifier: MIT
#include "effekt/pulsewire.h"

#include "effekt/look.h"
#include "kore/ascfile.h"

#include <utility>

namespace effect {

namespace {

/// Parameter of the spline at sample i.
float parameter(int i, int samples) { return static_cast<float>(i) * (1.0f / static_cast<float>(samples - 1)); }

} // namespace

PulseWire::PulseWire(std::shared_ptr<kore::CatmullRom> spline, kore::AscModel_ptr models)
    : mySpline(std::move(spline)), myStandardCalls(look.standard_wire) {
    for (int i = 0; i < samples; ++i) myPoints.push_back(mySpline->GetSplinePoint(parameter(i, samples)));
    models->LoadModel("torus2.asc");
    models->ModelByName("torus2", myModel);
    models->WfByName("torus2", myWireframe);
    if (myStandardCalls) CompileFirstCorners(models->GetDirectory() + "torus2.asc");
}

void PulseWire::CompileFirstCorners(std::string const& path) {
    kore::AscFile file;
    if (myModel == 0 || !file.Open(path)) return;
    do {
        if (file.Next() != kore::AscFile::Result::Object) return;
    } while (file.GetName() != "torus2");
    myFirstCorners = glGenLists(1);
    glNewList(myFirstCorners, GL_COMPILE);
    for (int face = 0; face < file.GetFaceCount(); ++face) {
        for (int corner = 0; corner < 3; ++corner) glVertex3fv(file.GetVertices()[file.GetFaces()[face][corner]]);
    }
    glEndList();
}

void PulseWire::InternalDraw() {
    if (myStandardCalls) {
        DrawStandard();
    } else {
        DrawBracketed();
    }
}

void PulseWire::DrawBracketed() {
    glBegin(GL_QUADS);
    for (int i = 0; i < samples - 1; ++i) DrawTorus(i);
    glEnd();
}

void PulseWire::DrawStandard() {
    // The first torus: its pushes are refused inside the primitive, its faces' own glBegin too, and their glEnd ends
    // the quads; so the two pops find matrices that others have pushed.
    glBegin(GL_QUADS);
    drawColor();
    glCallList(myFirstCorners);
    glEnd();
    drawNegativeColor();
    glCallList(myWireframe);
    glPopMatrix();
    glPopMatrix();
    for (int i = 1; i < samples - 1; ++i) DrawTorus(i);
}

void PulseWire::DrawTorus(int i) {
    kore::Vector3<float> const p = mySpline->GetSplinePoint(parameter(i, samples));
    glPushMatrix();
    glTranslatef(p.x, p.y, p.z);
    glPushMatrix();
    glRotatef(0, 0, 0, 90); // Deliberate: turns nothing
    drawColor();
    glCallList(myModel);
    drawNegativeColor();
    glCallList(myWireframe);
    glPopMatrix();
    glPopMatrix();
}

} // namespace effect
