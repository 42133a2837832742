// SPDX-License-Identifier: MIT
#include "tests/show/scenechecks.h"

#include <cmath>

using namespace scenes;

namespace {

constexpr char const* shapes[] = {"framecube", "spikeydodecahedron", "frameoctoball",
                                  "infinity",  "maltanristi",        "frametetrahedron"};

TEST(Swapper, ShowsOneShapeAfterTheOther) {
    std::vector<Moment> moments;
    for (int k = 0; k < 6; ++k) {
        std::string const shape = std::string(shapes[k]) + "#";
        for (double const at : {0.5, 3.0, 13.0}) {
            if (k == 1 && at == 0.5) continue; // the strobe of beat 16 runs
            moments.push_back(
                {16 * k + at, {shape + ":0", shape + "/lines:1", "frameoctoball#/lines:0", "gun_silhouette:0"}});
        }
    }
    expect_moments(swapper_scene, moments, white_wall);
}

TEST(Swapper, PlacesTheGunOutsideTheCamerasViewAndTheBallInside) {
    Stage s(swapper_scene);
    EXPECT_THAT(camera(s.PlayTo(2)), near({0, 0, 20, 0, 0, 0}));
    expect_matrix(Stage::Find("gun_silhouette").model_view, [] {
        glTranslatef(40, -40, -100);
        glScalef(12, 12, 1);
    });
    // Broken by the event of beat 0; its pieces only tremble.
    float const t = s.Time();
    gl::Matrix const place = matrix_of([t] {
        glTranslatef(-80, 80, -320);
        glRotatef(90 * t, 1, 0, 0);
        glRotatef(30 * t, 0, 1, 0);
        glRotatef(50 * t, 0, 0, 1);
        glScalef(19, 19, 19);
    });
    double const tremble = 19 * 0.1 * static_cast<double>(t) * std::sqrt(3.0); // of three axes together
    EXPECT_THAT(Stage::Find("frameoctoball#/lines").model_view,
                testing::Pointwise(testing::DoubleNear(tremble), place));
}

TEST(Swapper, SpinsEachShapeFromItsOwnFirstFrame) {
    Stage s(swapper_scene);
    for (std::size_t k = 0; k < 3; ++k) {
        s.PlayTo(16 * static_cast<double>(k));
        float const first = s.Time();
        EXPECT_THAT(values(s.Entity(k).GetRot()), near({0, 0, 0}));
        s.PlayTo(16 * static_cast<double>(k) + 7);
        auto const t = static_cast<double>(s.Time() - first);
        EXPECT_THAT(values(s.Entity(k).GetRot()), near({30 * t, 90 * t, 50 * t}, 1e-2));
    }
}

} // namespace
