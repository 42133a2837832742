// SPDX-License-Identifier: MIT
#include "tests/show/scenechecks.h"
#include "tests/support/withlook.h"

#include <algorithm>
#include <cstdlib>

using namespace scenes;
using testing::HasSubstr;

namespace {

// clang-format off
constexpr double path[9][3] = {
    {0,   0,   0},
    {-5,  -10, -40},
    {5,   20,  -90},
    {-20, 30,  -140},
    {-30, 40,  -200},
    {10,  50,  -260},
    {20,  60,  -300},
    {10,  50,  -340},
    {-10, 30,  -400},
};

constexpr double aims[9][3] = {
    {-5,   -10, -40},
    {5,    20,  -90},
    {-20,  30,  -140},
    {-30,  40,  -200},
    {1000, 50,  -260},
    {20,   60,  -300},
    {10,   50,  -340},
    {20,   60,  -400},
    {-10,  30,  -250},
};
// clang-format on

constexpr std::size_t tentacles = 3; // enabler

/// A point of the uniform Catmull-Rom spline through nine points, each worth eight beats.
double on_spline(double const (&points)[9][3], std::size_t axis, double beats) {
    int const p = static_cast<int>(beats / 8);
    double const u = beats / 8 - p;
    auto const at = [&](int i) { return points[std::clamp(i, 0, 8)][axis]; };
    return 0.5 *
           (2 * at(p) + (at(p + 1) - at(p - 1)) * u + (2 * at(p - 1) - 5 * at(p) + 4 * at(p + 1) - at(p + 2)) * u * u +
            (3 * at(p) - at(p - 1) - 3 * at(p + 1) + at(p + 2)) * u * u * u);
}

TEST(Tunnelgate, FliesAlongItsPathLookingAlongAnother) {
    Stage s(wire_scene);
    for (double const at : {0.0, 4.0, 8.0, 13.7, 16.0, 24.0, 32.0, 35.5, 40.0, 48.0, 56.0, 64.0, 68.0, 71.9}) {
        SCOPED_TRACE(at);
        s.PlayTo(at);
        double const b = static_cast<double>(s.Time()) / static_cast<double>(beat);
        std::vector<double> expected;
        for (std::size_t axis = 0; axis < 3; ++axis) expected.push_back(on_spline(path, axis, b));
        for (std::size_t axis = 0; axis < 3; ++axis) expected.push_back(on_spline(aims, axis, b));
        EXPECT_THAT(camera(s), near(expected, 0.01));
    }
}

TEST(Tunnelgate, FlashesTwiceOnEveryBeatButTheFirst) {
    // On the first frame nothing has started yet: the blinker comes before its targets.
    Stage s(wire_scene);
    std::vector<int> flashes(73, 0);
    while (s.Time() < 71.9f * beat) {
        s.Step();
        s.DrawOnly(tentacles);
        auto const b = static_cast<std::size_t>(s.Time() / beat);
        flashes[b] += Stage::Find("tentacles_silhouette").color[0] == 0 ? 1 : 0;
    }
    EXPECT_EQ(flashes[0], 0);
    for (std::size_t b = 1; b < 72; ++b) EXPECT_EQ(flashes[b], 2) << "beat " << b;
}

/// What is drawn at a beat with these look settings.
std::vector<gl::Draw> drawn(effect::Look const& wanted, double at) {
    support::WithLook const look(wanted);
    Stage s(wire_scene);
    s.PlayTo(at).Draw();
    return gl::draws();
}

std::string calls(effect::Look const& wanted) {
    drawn(wanted, 1.5);
    return gl::calls();
}

TEST(Tunnelgate, DrawsItsWireInsideOnePrimitiveByDefault) {
    std::string const bracketed = "Begin(QUADS) PushMatrix Translate(0,0,0) PushMatrix Rotate(0,0,0,90) Color(0,0,0) "
                                  "CallList(torus2) Color(1,1,1) CallList(torus2/lines) PopMatrix PopMatrix PushMatrix";
    EXPECT_THAT(calls({}), HasSubstr(bracketed));
    EXPECT_THAT(calls(support::standard_wire), testing::Not(HasSubstr(bracketed)));
}

TEST(Tunnelgate, LooksTheSameByTheStandardWithBothKindsOfCalls) {
    for (double const at : {0.0, 1.0, 20.1, 33.3, 71.9}) {
        SCOPED_TRACE(at);
        auto const bracketed = drawn({}, at);
        auto const standard = drawn(support::standard_wire, at);
        ASSERT_EQ(bracketed.size(), standard.size());
        ASSERT_EQ(bracketed.size(), 2 * 99 + 2 + 901u);
        // The first torus's faces are issued differently; everything after it is the same.
        EXPECT_TRUE(bracketed[0].inside_primitive);
        EXPECT_TRUE(standard[0].inside_primitive);
        for (std::size_t i = 0; i < bracketed.size(); ++i) {
            SCOPED_TRACE(testing::Message() << "draw " << i << ", " << bracketed[i].name);
            EXPECT_TRUE(i == 0 || bracketed[i].list == standard[i].list || bracketed[i].name == standard[i].name);
            ASSERT_EQ(bracketed[i].model_view, standard[i].model_view);
            ASSERT_EQ(bracketed[i].color, standard[i].color);
            ASSERT_EQ(bracketed[i].inside_primitive, standard[i].inside_primitive);
        }
    }
}

TEST(Tunnelgate, RaisesNoErrorInsideTheWireWithTheStandardsCalls) {
    support::WithLook const look(support::standard_wire);
    Stage s(wire_scene);
    s.PlayTo(1.5).Draw();
    // Only the pops of matrices that the first torus has taken away remain.
    EXPECT_THAT(gl::errors(), testing::Each("STACK_UNDERFLOW PopMatrix"));
}

TEST(Tunnelgate, FixesTheTentaclesInFrontOfTheViewerByTheStandard) {
    for (double const at : {1.5, 40.0}) {
        auto const draws = drawn({}, at);
        ASSERT_EQ(draws[198].name, "tentacles_silhouette");
        expect_matrix(draws[198].model_view, [] {
            glTranslatef(-0.3f, 0.3f, -1);
            glScalef(0.2f, 0.2f, 1);
        });
        expect_matrix(draws[199].model_view, [] {
            glTranslatef(0.3f, -0.7f, -1);
            glRotatef(180, 1, 0, 0);
            glRotatef(180, 0, 1, 0);
            glScalef(0.2f, 0.2f, 1);
        });
    }
}

TEST(Tunnelgate, DrawsNinetyNineToriInBlackWithWhiteLines) {
    Stage s(wire_scene);
    EXPECT_THAT(s.PlayTo(1.5).Seen(),
                testing::ElementsAre("torus2:0", "torus2/lines:1", "tentacles_silhouette:1", "tile:0", "tile:1"));
    EXPECT_EQ(Stage::Count("torus2"), 99);
    EXPECT_EQ(Stage::Count("torus2/lines"), 99);
    EXPECT_EQ(Stage::Count("tentacles_silhouette"), 2);
}

} // namespace
