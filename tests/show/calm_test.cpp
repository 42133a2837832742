// SPDX-License-Identifier: MIT
// The calm show, scene by scene: which colour everything has between the cuts.

#include "tests/show/scenechecks.h"
#include "tests/support/withlook.h"

using namespace scenes;

namespace {

constexpr effect::Look calm{.calm = true};

/// Grey level of what is drawn first under this name at a beat, the wall's tiles being "tile".
float level(Stage& s, double at, std::string const& name) {
    s.PlayTo(at).Draw();
    return Stage::Find(name).color[0];
}

TEST(CalmScenes, ShowTheWordsInBlackWhileTheyStand) {
    support::WithLook const look(calm);
    Stage s(intro_scene);
    EXPECT_EQ(level(s, 0.1, "We"), 1); // as it swings in
    EXPECT_EQ(level(s, 0.4, "We"), 0);
    EXPECT_EQ(level(s, 0.9, "We"), 0);
    EXPECT_EQ(level(s, 1.1, "Know"), 1);
    EXPECT_EQ(level(s, 1.4, "Know"), 0);
    EXPECT_EQ(level(s, 12.2, "tile"), 1);
    EXPECT_EQ(level(s, 12.4, "tile"), 0);
    EXPECT_EQ(level(s, 15.9, "tile"), 0);
    EXPECT_EQ(level(s, 15.9, "QUILLONx"), 1);
}

TEST(CalmScenes, ShowTheLegsInNegativeUntilTheCameraLooksUp) {
    support::WithLook const look(calm);
    expect_moments(gungirl_scene, {{3.9, {"gungirl_silhouette#:0", "gungirl_silhouette#/lines:1"}}}, white_wall);
    expect_moments(gungirl_scene, {{4.1, {"gungirl_silhouette:1"}}, {7.9, {"gungirl_silhouette:1"}}}, black_wall);
    Stage s(gungirl_scene);
    for (double const at : {8.1, 16.1, 47.9}) EXPECT_EQ(level(s, at, "gungirl_silhouette"), 0);
}

TEST(CalmScenes, ShowEveryShapeInNegativeWhileItIsWhole) {
    support::WithLook const look(calm);
    Stage s(swapper_scene);
    for (int first = 0; first < 96; first += 16) {
        EXPECT_EQ(level(s, first + 3.9, "gun_silhouette"), 0);
        EXPECT_EQ(level(s, first + 4.1, "gun_silhouette"), 1);
        EXPECT_EQ(level(s, first + 7.9, "tile"), 0);
        EXPECT_EQ(level(s, first + 8.1, "tile"), 1);
    }
}

TEST(CalmScenes, ShowTheCreditsWhileADancerHoldsStill) {
    support::WithLook const look(calm);
    struct Row {
        double at;
        char const* dancer;
        bool readable;
    };
    // clang-format off
    constexpr Row rows[] = {
        {0.2,  "butt_silhouette",     true},
        {3.9,  "butt_silhouette",     true},
        {4.1,  "side2_silhouette",    false},
        {7.9,  "side2_silhouette",    false},
        {8.1,  "sideview_silhouette", true},
        {11.9, "sideview_silhouette", true},
        {12.1, "butt_silhouette",     false},
        {15.9, "butt_silhouette",     false},
        {16.1, "side2_silhouette",    true},
        {19.9, "side2_silhouette",    true},
        {20.1, "sideview_silhouette", false},
        {23.9, "sideview_silhouette", false},
    };
    // clang-format on
    Stage s(credits_scene);
    for (Row const& row : rows) {
        SCOPED_TRACE(row.at);
        EXPECT_EQ(level(s, row.at, row.dancer), row.readable ? 0 : 1);
        EXPECT_EQ(Stage::Find("tile").color[0], row.readable ? 1 : 0);
        EXPECT_EQ(Stage::Find("credits").color[0], 0);
    }
}

TEST(CalmScenes, TurnTheTunnelToNegativeAndBackOnEveryBeat) {
    support::WithLook const look(calm);
    Stage s(wire_scene);
    for (int beats = 0; beats < 72; ++beats) {
        float const expected = beats % 2 == 0 ? 0 : 1;
        EXPECT_EQ(level(s, beats + 0.1, "tile"), expected) << beats;
        EXPECT_EQ(Stage::Find("tentacles_silhouette").color[0], 1 - expected) << beats;
    }
}

TEST(CalmScenes, ShowTheTitlesInBlackForThreeBeatsOfFour) {
    support::WithLook const look(calm);
    Stage s(plasma_scene);
    for (int beats = 0; beats < 32; ++beats) {
        EXPECT_EQ(level(s, beats + 0.1, "HARD-title"), beats % 4 == 0 ? 1 : 0) << beats;
    }
}

TEST(CalmScenes, CutTheOutermostShellAlone) {
    support::WithLook const look(calm);
    Stage fountain(fountain_scene);
    Stage greets(greets_scene);
    for (int beats = 0; beats < 32; ++beats) {
        SCOPED_TRACE(beats);
        bool const cut = beats % 4 == 0 && beats > 0;
        for (Stage* const s : {&fountain, &greets}) {
            EXPECT_EQ(level(*s, beats + 0.1, "frameicosahedron"), cut ? 1 : 0);
            for (char const* const name : {"tile", "torus2", "frameoctoball"}) {
                EXPECT_EQ(Stage::Find(name).color[0], 1) << name;
            }
            EXPECT_EQ(Stage::Count("hollowsoccerball"), 0); // of wire
            EXPECT_EQ(Stage::Find("hollowsoccerball/lines").color[0], 0);
        }
    }
}

} // namespace
