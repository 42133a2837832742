// SPDX-License-Identifier: MIT
#include "effekt/pulsewire.h"

#include "tests/effekt/support.h"
#include "tests/support/withlook.h"

#include <GL/gl.h>
#include <fstream>
#include <sstream>

using effect_test::state_at;
using testing::HasSubstr;

namespace {

using Type = kore::BlinkerInterface::BlinkerType;

constexpr int tori = 99;
constexpr std::size_t calls_of_a_torus = 10;

class PulseWire : public effect_test::EffectTest {
protected:
    void SetUp() override {
        WriteMesh("torus2.asc", "torus2");
        for (float const z : {0.f, 10.f, 30.f, 35.f}) spline->AddSplinePoint({1, -z, z});
    }

    std::unique_ptr<effect::PulseWire> Wire(bool standard = false) {
        support::WithLook const look({.standard_wire = standard});
        kore::AscModel_ptr const models = Library();
        auto wire = std::make_unique<effect::PulseWire>(spline, models);
        NameLists(*models, "torus2");
        return wire;
    }

    /// Draws inside four more matrices, as in a scene and its entity.
    static void Draw(effect::PulseWire& wire) {
        for (int i = 0; i < 4; ++i) glPushMatrix();
        gl::clear_log();
        wire.InternalDraw();
    }

    /// All calls of torus i.
    std::string Torus(int i) const {
        kore::Vector3<float> const p = spline->GetSplinePoint(static_cast<float>(i) * (1.0f / 99));
        char place[80];
        std::snprintf(place, sizeof place, "Translate(%g,%g,%g)", static_cast<double>(p.x) + 0.0,
                      static_cast<double>(p.y) + 0.0, static_cast<double>(p.z) + 0.0);
        return "PushMatrix " + std::string(place) +
               " PushMatrix Rotate(0,0,0,90) Color(1,1,1) CallList(torus2) Color(0,0,0) CallList(torus2-lines) "
               "PopMatrix PopMatrix ";
    }

    std::shared_ptr<kore::CatmullRom> spline = std::make_shared<kore::CatmullRom>();
};

TEST_F(PulseWire, IssuesTheWholeWireInsideOnePrimitive) {
    auto const wire = Wire();
    EXPECT_STREQ(wire->Name(), "PulseWire");
    Draw(*wire);
    std::string expected = "Begin(QUADS) ";
    for (int i = 0; i < tori; ++i) expected += Torus(i);
    EXPECT_EQ(gl::calls(), expected + "End");
    EXPECT_EQ(gl::call_count(), 2 + tori * calls_of_a_torus);
}

TEST_F(PulseWire, IssuesOnlyWhatTheStandardLeavesEffectiveWhenAsked) {
    auto const wire = Wire(true);
    gl::name_list(3, "corners");
    EXPECT_EQ("Begin(TRIANGLES) " + gl::list_content(3) + " End", effect_test::mesh_faces);
    Draw(*wire);
    std::string expected = "Begin(QUADS) Color(1,1,1) CallList(corners) End Color(0,0,0) CallList(torus2-lines) "
                           "PopMatrix PopMatrix ";
    for (int i = 1; i < tori; ++i) expected += Torus(i);
    EXPECT_EQ(gl::calls() + ' ', expected);
    EXPECT_THAT(gl::errors(), testing::IsEmpty());
}

TEST_F(PulseWire, TakesTheFirstCornersFromItsOwnObjectOfTheFile) {
    // Another object comes before it.
    std::stringstream torus;
    torus << std::ifstream(Root() / "data/torus2.asc", std::ios::binary).rdbuf();
    std::ofstream(Root() / "data/torus2.asc", std::ios::binary) << "Named object: \"other\"\r\n"
                                                                   "Tri-mesh, Vertices: 1     Faces: 1\r\n"
                                                                   "Vertex list:\r\n"
                                                                   "Vertex 0:  X:9     Y:9     Z:9\r\n"
                                                                   "Face list:\r\n"
                                                                   "Face 0:    A:0 B:0 C:0 AB:1 BC:1 CA:1\r\n"
                                                                   "\r\n"
                                                                << torus.str();
    auto const wire = Wire(true);
    EXPECT_EQ("Begin(TRIANGLES) " + gl::list_content(5) + " End", effect_test::mesh_faces);
}

TEST_F(PulseWire, LeavesTheFirstTorusOutWhereItsFileDoesNotHoldIt) {
    for (char const* const object : {"", "other"}) {
        SCOPED_TRACE(object);
        gl::reset();
        kore::AscModel_ptr const models = Library();
        models->LoadModel("torus2.asc"); // the model is loaded, and then its file changes
        std::filesystem::remove(Root() / "data/torus2.asc");
        if (*object) WriteMesh("torus2.asc", object);
        support::WithLook const look(support::standard_wire);
        testing::internal::CaptureStdout();
        effect::PulseWire wire(spline, models);
        EXPECT_EQ(testing::internal::GetCapturedStdout().empty(), *object != 0);
        NameLists(*models, "torus2");
        Draw(wire);
        EXPECT_THAT(gl::calls(), testing::StartsWith("Begin(QUADS) Color(1,1,1) CallList(0) End Color(0,0,0) "
                                                     "CallList(torus2-lines) PopMatrix PopMatrix PushMatrix "));
        WriteMesh("torus2.asc", "torus2");
    }
}

TEST_F(PulseWire, HasTheSameEffectByTheStandardWithBothStreams) {
    std::vector<gl::Draw> draws[2];
    gl::Matrix left[2];
    for (int const standard : {0, 1}) {
        gl::reset();
        auto const wire = Wire(standard == 1);
        glTranslatef(1, 2, 3);
        glPushMatrix();
        glRotatef(30, 1, 1, 0);
        Draw(*wire);
        EXPECT_FALSE(gl::inside_primitive());
        EXPECT_EQ(gl::model_view_depth(), 1u + 1 + 4 - 2);
        draws[standard] = gl::draws();
        left[standard] = gl::model_view();
    }
    EXPECT_EQ(left[0], left[1]);
    ASSERT_EQ(draws[0].size(), 2u * tori);
    ASSERT_EQ(draws[1].size(), 2u * tori);
    EXPECT_TRUE(draws[0][0].inside_primitive);
    EXPECT_TRUE(draws[1][0].inside_primitive);
    for (std::size_t i = 0; i < draws[0].size(); ++i) {
        SCOPED_TRACE(testing::Message() << "list " << i);
        if (i > 0) {
            EXPECT_EQ(draws[0][i].name, draws[1][i].name);
            EXPECT_FALSE(draws[0][i].inside_primitive);
        }
        EXPECT_EQ(draws[0][i].model_view, draws[1][i].model_view);
        EXPECT_EQ(draws[0][i].color, draws[1][i].color);
    }
}

TEST_F(PulseWire, TakesTwoMatricesOfOthersAway) {
    for (bool const standard : {false, true}) {
        SCOPED_TRACE(standard);
        gl::reset();
        auto const wire = Wire(standard);
        glTranslatef(0, 0, -7); // the camera
        glPushMatrix();
        gl::clear_log();
        wire->SetPos({100, 0, 0});
        wire->Draw(); // pushes two, loses two, and pops two: the camera's with them
        EXPECT_EQ(gl::model_view_depth(), 1u);
        EXPECT_EQ(gl::model_view()[12], 0);
        EXPECT_EQ(gl::model_view()[14], -7);
    }
}

TEST_F(PulseWire, ThreadsTheToriOnTheSplineLeavingOutItsEnd) {
    auto const wire = Wire(true);
    Draw(*wire);
    for (int i = 1; i < tori; ++i) {
        kore::Vector3<float> const p = spline->GetSplinePoint(static_cast<float>(i) / 99);
        gl::Matrix const& at = gl::draws()[2 * static_cast<std::size_t>(i)].model_view;
        ASSERT_NEAR(at[12], p.x, 1e-4) << i;
        ASSERT_NEAR(at[13], p.y, 1e-4) << i;
        ASSERT_NEAR(at[14], p.z, 1e-4) << i;
        ASSERT_EQ(at[0], 1) << i; // the rotation turns nothing
        ASSERT_EQ(at[5], 1) << i;
    }
}

TEST_F(PulseWire, FollowsPointsThatAreAddedLater) {
    auto const wire = Wire();
    spline->AddSplinePoint({50, 60, 70});
    Draw(*wire);
    EXPECT_THAT(gl::calls(), HasSubstr(Torus(0) + Torus(1)));
    EXPECT_THAT(gl::calls(), HasSubstr(Torus(98)));
}

TEST_F(PulseWire, StandsInOnePlaceOnASplineOfOnePoint) {
    spline = std::make_shared<kore::CatmullRom>();
    spline->AddSplinePoint({4, 5, 6});
    auto const wire = Wire(true);
    Draw(*wire);
    for (std::size_t i = 2; i < std::size_t{2} * tori; ++i) {
        auto const place = gl::transform(gl::draws()[i].model_view, 0, 0, 0);
        ASSERT_NEAR(place[0], 4, 1e-5) << i;
        ASSERT_NEAR(place[1], 5, 1e-5) << i;
        ASSERT_NEAR(place[2], 6, 1e-5) << i;
    }
}

TEST_F(PulseWire, DoesNotMoveByItselfAndDrawsBothWhateverTheFlagsSay) {
    auto const wire = Wire();
    Draw(*wire);
    std::string const before = gl::calls();
    wire->DrawSolid(false);
    wire->DrawWireframe(false);
    wire->Blink(Type::Wireframe, 0);
    wire->Blink(Type::Solid, 0);
    wire->UpdateLogic(state_at(5, 8, true));
    Draw(*wire);
    EXPECT_EQ(gl::calls(), before);
}

TEST_F(PulseWire, StrobesFacesAgainstLinesInBothStreams) {
    for (bool const standard : {false, true}) {
        SCOPED_TRACE(standard);
        gl::reset();
        auto const wire = Wire(standard);
        wire->Blink(Type::Strobe, 2);
        for (bool const swapped : {true, false, true, false, false}) { // counts 4, 3, 2, 1, 0
            wire->UpdateLogic(state_at(0));
            gl::reset();
            for (int i = 0; i < 4; ++i) glPushMatrix();
            wire->InternalDraw();
            ASSERT_EQ(gl::draws().size(), 2u * tori);
            for (std::size_t i = 0; i < gl::draws().size(); ++i) {
                bool const lines = i % 2 == 1;
                ASSERT_EQ(gl::draws()[i].color[0], lines == swapped ? 1 : 0) << "list " << i;
            }
        }
    }
}

TEST_F(PulseWire, DrawsNoListWithoutItsModel) {
    for (bool const standard : {false, true}) {
        for (char const* const what : {"another object", "no file"}) {
            SCOPED_TRACE(testing::Message() << "standard " << standard << ", " << what);
            gl::reset();
            if (what == std::string("another object")) {
                WriteMesh("torus2.asc", "other");
            } else {
                std::filesystem::remove(Root() / "data/torus2.asc");
            }
            support::WithLook const look({.standard_wire = standard});
            testing::internal::CaptureStdout();
            effect::PulseWire wire(spline, Library());
            testing::internal::GetCapturedStdout(); // the library's error line
            Draw(wire);
            ASSERT_EQ(gl::draws().size(), 2u * tori);
            for (gl::Draw const& draw : gl::draws()) ASSERT_EQ(draw.list, 0u);
        }
    }
}

} // namespace
