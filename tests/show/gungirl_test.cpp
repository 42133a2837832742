// SPDX-License-Identifier: MIT
#include "tests/show/scenechecks.h"

using namespace scenes;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

TEST(GunGirl, AssemblesItsFigureAndThenShowsItWithTheGyro) {
    Names const pieces = {"gungirl_silhouette#:0", "gungirl_silhouette#/lines:1"};
    Names const all = {"gungirl_silhouette:0", "donut2:0", "donut2/lines:1"};
    expect_moments(gungirl_scene,
                   {
                       {0, pieces},
                       {3.9, pieces},
                       {9, all},
                       {17, all},
                       {47.9, all},
                   },
                   white_wall);
    expect_names(gungirl_scene, 4, {"gungirl_silhouette", "tile"});
    expect_names(gungirl_scene, 7.9, {"gungirl_silhouette", "tile"});
}

TEST(GunGirl, StrobesFiftySixTimesWhenItIsWhole) {
    Stage s(gungirl_scene);
    s.PlayTo(4);
    int flashes = 0;
    while (s.Time() < 10 * beat) {
        s.Step();
        s.Draw();
        flashes += Stage::Find("gungirl_silhouette").color[0] == 1 ? 1 : 0;
    }
    EXPECT_EQ(flashes, 56);
}

TEST(GunGirl, MovesItsCameraUpInOneStep) {
    Stage s(gungirl_scene);
    for (double const at : {0.0, 4.0, 7.95}) EXPECT_THAT(camera(s.PlayTo(at)), near({0, -2.6, 2.3, 0, -2.6, 0}));
    for (double const at : {8.0, 47.9}) EXPECT_THAT(camera(s.PlayTo(at)), near({0, 2.6, 2.3, 0, 2.6, 0}));
}

TEST(GunGirl, ScattersItsPiecesLittleAndTurnsThemMuch) {
    Stage s(gungirl_scene);
    s.PlayTo(0);
    double const amount = 4 * static_cast<double>(beat);
    auto const most = farthest(s, "gungirl_silhouette#", [] { gluLookAt(0, -2.6f, 2.3f, 0, -2.6f, 0, 0, 1, 0); });
    EXPECT_THAT(most, testing::Each(testing::AllOf(testing::Gt(0.07 * amount), testing::Le(0.1001 * amount))));
}

TEST(GunGirl, FlipsTheWallFourTimes) {
    // From beat to beat: turned (level 1, which looks flat), and back to flat within two beats.
    Stage s(gungirl_scene);
    struct {
        double at;
        char const* turn;
    } const rows[] = {
        {15.9, "Rotate(180,0,1,0) Rotate(360,1,0,0)"}, {18.2, "Rotate(0,0,1,0) Rotate(0,1,0,0)"},
        {23.9, "Rotate(0,0,1,0) Rotate(0,1,0,0)"},     {26.2, "Rotate(180,0,1,0) Rotate(360,1,0,0)"},
        {34.2, "Rotate(0,0,1,0) Rotate(0,1,0,0)"},     {42.2, "Rotate(180,0,1,0) Rotate(360,1,0,0)"},
    };
    for (auto const& row : rows) {
        SCOPED_TRACE(row.at);
        s.PlayTo(row.at).Draw();
        EXPECT_THAT(gl::calls(), HasSubstr(std::string("Translate(-1450,-1450,0) ") + row.turn));
    }
}

TEST(GunGirl, HoldsTheGyroFarBehindAndLosesAMatrixToIt) {
    Stage s(gungirl_scene);
    s.PlayTo(4).Draw();
    EXPECT_THAT(gl::errors(), testing::IsEmpty());
    s.PlayTo(9).Draw();
    EXPECT_THAT(
        gl::transform(Stage::Find("donut2").model_view, 0, 0, 0),
        ElementsAre(testing::DoubleNear(0, 1e-6), testing::DoubleNear(-2.6, 1e-6), testing::DoubleNear(-92.3, 1e-5)));
    EXPECT_THAT(gl::errors(), ElementsAre("STACK_UNDERFLOW PopMatrix"));
    EXPECT_EQ(gl::model_view_depth(), 1u);
    // The wall is where it is in every scene.
    EXPECT_THAT(gl::transform(Stage::Find("tile", 900).model_view, 0, 0, 0), ElementsAre(0, 0, -1600));
}

} // namespace
