// SPDX-License-Identifier: MIT
#include "effekt/torusfountain.h"

namespace effect {

namespace {

/// Reverses at the end of a stroke.
/// @return how far along its stroke it is: 0 at the bottom (or smallest), 1 at the top (or largest)
float stroke(int& direction, float& turn_time, float period, float t) {
    if (t - turn_time >= period) {
        turn_time = t;
        direction = -direction;
    }
    float const p = (t - turn_time) / period;
    return direction == 1 ? p : 1 - p;
}

} // namespace

TorusFountain::TorusFountain(kore::AscModel_ptr models) {
    models->LoadModel("torus2.asc");
    models->ModelByName("torus2", myModel);
    models->WfByName("torus2", myWireframe);

    // Three start upwards, three downwards; both groups are staggered alike.
    for (std::size_t i = 0; i < drawn; ++i) {
        auto const place = static_cast<float>(i % 3);
        sizepos& torus = myTori[i];
        torus.move_direction = torus.size_direction = i < 3 ? 1 : -1;
        torus.move_turn_time = 2 * (place * myMovePeriod / 6.0f);
        torus.size_turn_time = torus.move_turn_time + myMovePeriod / 2.0f;
    }
}

float TorusFountain::CubicSmoothStep(float const& x) { return (3.0f - (x + x)) * (x * x); }

kore::Vector3<float> TorusFountain::Linear(kore::Vector3<float> a, kore::Vector3<float> b, float const& x) {
    return a + (a - b) * CubicSmoothStep(x);
}

float TorusFountain::LinearFloat(float a, float b, float const& x) { return CubicSmoothStep(x) * (a - b) + a; }

void TorusFountain::UpdateTorus(sizepos& torus, float t, float move_period, float size_period) {
    float const p = stroke(torus.move_direction, torus.move_turn_time, move_period, t);
    torus.position = Linear({0, 0, 0}, {0, -120, 0}, p);
    float const q = stroke(torus.size_direction, torus.size_turn_time, size_period, t);
    torus.size = LinearFloat(0, -8, q) + 1;
}

void TorusFountain::UpdateLogic(kore::StateData const& state) {
    UpdateBlink();
    for (std::size_t i = 0; i < drawn; ++i) UpdateTorus(myTori[i], state.time, myMovePeriod, mySizePeriod);
}

void TorusFountain::InternalDraw() {
    glPushMatrix();
    glTranslatef(0, -60, 0);
    for (std::size_t i = 0; i < drawn; ++i) {
        sizepos const& torus = myTori[i];
        glPushMatrix();
        glTranslatef(torus.position.x, torus.position.y, torus.position.z);
        glRotatef(90, 1, 0, 0);
        glPushMatrix();
        glScalef(torus.size, torus.size, torus.size);
        drawColor();
        glCallList(myModel);
        drawNegativeColor();
        glCallList(myWireframe);
        glPopMatrix();
        glPopMatrix();
    }
    glPopMatrix();
}

} // namespace effect
