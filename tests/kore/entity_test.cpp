// SPDX-License-Identifier: MIT
#include "kore/camera.h"
#include "kore/entity.h"
#include "tests/kore/probes.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <gtest/gtest.h>
#include <set>
#include <utility>
#include <vector>

using probes::Is;
using probes::Thing;
using testing::AnyOf;
using testing::DoubleNear;
using testing::Each;
using testing::ElementsAre;
using testing::EndsWith;
using testing::SizeIs;
using testing::StartsWith;

namespace {

auto near(double x, double y, double z) {
    return ElementsAre(DoubleNear(x, 1e-6), DoubleNear(y, 1e-6), DoubleNear(z, 1e-6));
}

class Entity : public testing::Test {
protected:
    void SetUp() override { gl::reset(); }
    Thing thing;
};

TEST_F(Entity, IsDrawnAtTheOriginWithoutRotationAtFirst) {
    thing.Draw();
    EXPECT_EQ(gl::calls(), "PushMatrix Translate(0,0,0) PushMatrix Rotate(0,1,0,0) Rotate(0,0,1,0) Rotate(0,0,0,1) "
                           "CallList(thing) PopMatrix PopMatrix");
    EXPECT_EQ(gl::draws().at(0).model_view, gl::model_view());
}

TEST_F(Entity, TranslatesAndThenRotatesAboutXThenYThenZ) {
    thing.SetPos({1, 2, 3});
    thing.SetRot({10, 20, 30});
    thing.Draw();
    EXPECT_EQ(gl::calls(), "PushMatrix Translate(1,2,3) PushMatrix Rotate(10,1,0,0) Rotate(20,0,1,0) Rotate(30,0,0,1) "
                           "CallList(thing) PopMatrix PopMatrix");
}

TEST_F(Entity, TurnsAVertexAboutZFirst) {
    thing.SetPos({100, 0, 0});
    thing.SetRot({90, 0, 90});
    thing.Draw();
    // About z from (1, 0, 0) to (0, 1, 0), then about x to (0, 0, 1), then moved.
    EXPECT_THAT(gl::transform(gl::draws().at(0).model_view, 1, 0, 0), near(100, 0, 1));
}

TEST_F(Entity, LeavesTheMatrixStackAsItWas) {
    glTranslatef(5, 6, 7);
    gl::Matrix const before = gl::model_view();
    thing.SetPos({1, 2, 3});
    thing.Draw();
    EXPECT_EQ(gl::model_view(), before);
    EXPECT_EQ(gl::model_view_depth(), 1u);
    EXPECT_THAT(gl::errors(), testing::IsEmpty());
}

TEST_F(Entity, AccumulatesIncrementsWithoutWrappingAngles) {
    for (int i = 0; i < 2; ++i) thing.IncRot({0, 10, 0});
    EXPECT_THAT(thing.GetRot(), Is(0, 20, 0));
    thing.IncRot({720, -1000, 0});
    EXPECT_THAT(thing.GetRot(), Is(720, -980, 0));
    thing.SetPos({1, 1, 1});
    thing.IncPos({1, 2, 3});
    EXPECT_THAT(thing.GetPos(), Is(2, 3, 4));
}

TEST_F(Entity, HandsOutReferencesToItsPositionAndRotation) {
    thing.GetPos().x = 4;
    thing.GetRot().z = 5;
    EXPECT_THAT(thing.GetPos(), Is(4, 0, 0));
    EXPECT_THAT(thing.GetRot(), Is(0, 0, 5));
}

class Camera : public testing::Test {
protected:
    void SetUp() override { gl::reset(); }
    effect::Camera camera;
};

TEST_F(Camera, IsNothingButALookAtWithYUp) {
    camera.SetPos({1, 2, 3});
    camera.SetRot({90, 90, 90}); // not used
    camera.SetLookPos({4, 5, 6});
    EXPECT_EQ(camera.GetLookPos().x, 4);
    EXPECT_EQ(camera.GetLookPos().y, 5);
    EXPECT_EQ(camera.GetLookPos().z, 6);
    camera.IncLookPos({0.5f, 0, 0});
    camera.Draw();
    EXPECT_EQ(gl::calls(), "LookAt(1,2,3,4.5,5,6,0,1,0)");
    EXPECT_EQ(gl::model_view_depth(), 1u);
}

TEST_F(Camera, LooksAtTheOriginAtFirst) {
    camera.Draw();
    EXPECT_EQ(gl::calls(), "LookAt(0,0,0,0,0,0,0,1,0)");
    EXPECT_STREQ(camera.Name(), "Camera");
}

TEST_F(Camera, ShowsTheOriginInTheCentreWithYUp) {
    camera.SetPos({0, 0, 10});
    camera.Draw();
    EXPECT_THAT(gl::transform(gl::model_view(), 0, 0, 0), near(0, 0, -10));
    EXPECT_THAT(gl::transform(gl::model_view(), 0, 1, 0), near(0, 1, -10));
    EXPECT_THAT(gl::transform(gl::model_view(), 1, 0, 0), near(1, 0, -10));
}

TEST_F(Camera, StaysInForceForWhatIsDrawnNext) {
    camera.SetPos({0, 0, 10});
    camera.Draw();
    Thing thing;
    thing.Draw();
    EXPECT_THAT(gl::transform(gl::draws().at(0).model_view, 0, 0, 0), near(0, 0, -10));
}

TEST_F(Camera, IsNotMovedByItsOwnLogic) {
    camera.SetPos({1, 2, 3});
    camera.UpdateLogic(probes::at_time(3));
    EXPECT_THAT(camera.GetPos(), Is(1, 2, 3));
    EXPECT_EQ(gl::call_count(), 0u);
}

TEST_F(Camera, DrawsItsFrustumAsSevenRedQuadsOnTheCornersOfABox) {
    camera.DebugCam();
    EXPECT_THAT(gl::calls(), StartsWith("Color(1,0,0) Begin(QUADS) Vertex("));
    EXPECT_THAT(gl::calls(), EndsWith(") End"));
    std::vector<std::array<float, 3>> vertices;
    for (std::string const& call : gl::call_list()) {
        std::array<float, 3> v{};
        if (std::sscanf(call.c_str(), "Vertex(%f,%f,%f)", &v[0], &v[1], &v[2]) == 3) vertices.push_back(v);
    }
    EXPECT_THAT(vertices, SizeIs(28));
    EXPECT_THAT(vertices, Each(ElementsAre(AnyOf(-0.5f, 0.5f), AnyOf(-0.5f, 0.5f), AnyOf(-1.1f, -0.1f))));
    // Every side of the box is among the quads: four corners that agree in one coordinate.
    std::set<std::pair<std::size_t, float>> sides;
    for (std::size_t quad = 0; quad + 4 <= vertices.size(); quad += 4) {
        std::set<std::array<float, 3>> const corners(&vertices[quad], &vertices[quad] + 4);
        EXPECT_THAT(corners, SizeIs(4)) << "quad " << quad / 4;
        for (std::size_t axis = 0; axis < 3; ++axis) {
            auto const at = [&](auto const& corner) { return corner[axis]; };
            float const first = at(vertices[quad]);
            if (std::ranges::all_of(
                    corners, [&](float x) { return x == first; }, at))
                sides.emplace(axis, first);
        }
    }
    EXPECT_THAT(sides, SizeIs(6));
}

} // namespace
