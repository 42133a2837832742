// SPDX-License-Identifier: MIT
#include "tests/show/scenechecks.h"

using namespace scenes;

namespace {

TEST(Intro, ShowsOneMoreWordOnEveryBeat) {
    expect_moments(intro_scene,
                   {
                       {0.1, {"We:0", "We/lines:1"}},
                       {0.9, {"We:0", "We/lines:1"}},
                       {1.1, {"We:0", "We/lines:1", "Know:0", "Know/lines:1"}},
                       {2.1, {"Know:0", "Know/lines:1", "What:0", "What/lines:1"}},
                       {3.1, {"What:0", "What/lines:1", "We:0", "We/lines:1"}},
                       {4.1, {"We:0", "We/lines:1", "Are:0", "Are/lines:1"}},
                       {5.1, {"Are:0", "Are/lines:1", "Doing:0", "Doing/lines:1"}},
                       {6.1, {"Doing:0", "Doing/lines:1", "QUILLONx:0", "QUILLONx/lines:1"}},
                       {7.1, {"QUILLONx:0", "QUILLONx/lines:1"}},
                       {9.9, {"QUILLONx:0", "QUILLONx/lines:1"}},
                       {10.0, {"QUILLONx:0", "QUILLONx/lines:1", "glass#:1"}},
                       {12.2, {"QUILLONx:0", "QUILLONx/lines:1", "glass#:1"}},
                       {13.0, {"QUILLONx:0", "QUILLONx/lines:1", "glass#:1", "glass#/lines:0"}},
                       {15.5, {"QUILLONx:0", "QUILLONx/lines:1", "glass#:1", "glass#/lines:0"}},
                   },
                   white_wall);
}

TEST(Intro, ShowsTheLastWordAndTheTagAtBeatSixAndAHalf) {
    expect_names(intro_scene, 6.5, {"Doing", "Doing/lines", "QUILLONx", "QUILLONx/lines", "tile"});
}

TEST(Intro, StrobesItsWordsAQuarterBeatAfterEachBeat) {
    // Six single swapped frames, each followed by a normal one.
    Stage s(intro_scene);
    std::string flashes;
    for (int frame = 0; frame < 27; ++frame) {
        s.Step();
        s.Draw();
        flashes += Stage::Find("We").color[0] == 1 ? '#' : '.';
    }
    EXPECT_EQ(flashes, ".......#.#.#.#.#.#.........");
}

void intro_camera() { gluLookAt(-0.15f, 0, 1.4f, -0.145f, 0.05f, -1, 0, 1, 0); }

TEST(Intro, SwingsWordsInAndAway) {
    Stage s(intro_scene);
    s.PlayTo(1.5).Draw();
    // "Know" stands; "We" has swung away about the lower hinge.
    expect_matrix(Stage::Find("Know").model_view, [] {
        intro_camera();
        glScalef(0.1f, 0.1f, 0.1f);
    });
    expect_matrix(Stage::Find("We").model_view, [] {
        intro_camera();
        glTranslatef(0, -5, 0);
        glRotatef(-120, 1, 0, 0);
        glTranslatef(0, 5, 0);
        glScalef(0.1f, 0.1f, 0.1f);
    });
    s.PlayTo(6.5).Draw();
    expect_matrix(Stage::Find("QUILLONx").model_view, [] {
        intro_camera();
        glScalef(0.065f, 0.065f, 0.065f);
    });
}

TEST(Intro, BringsAWordInFromAHundredAndTwentyDegreesInAQuarterBeat) {
    Stage s(intro_scene);
    s.PlayTo(2.1).Draw();
    double const f =
        (static_cast<double>(s.Time()) - 2 * static_cast<double>(beat)) / (0.25 * static_cast<double>(beat));
    expect_matrix(Stage::Find("What").model_view, [f] {
        intro_camera();
        glTranslatef(0, 5, 0);
        glRotatef(static_cast<float>(120 - 120 * f), 1, 0, 0);
        glTranslatef(0, -5, 0);
        glScalef(0.1f, 0.1f, 0.1f);
    });
}

/// The tag's path along z, by beats.
double tag_depth(double b) {
    if (b < 12) return -0.5 * (b - 7) / 5;
    if (b < 12.25) return -0.5 - 2 * (b - 12) / 0.25;
    return -2.5 - (b - 12.25) / 3.75;
}

TEST(Intro, ShootsTheTagThroughTheGlassAtBeatTwelve) {
    Stage s(intro_scene);
    std::size_t const tag = 9; // enabler
    s.PlayTo(7);
    EXPECT_THAT(values(s.Entity(tag).GetPos()), near({-0.12, 0, 0}));
    float const first = s.Time();
    for (double const at : {8.0, 9.5, 11.9, 12.1, 12.2, 13.0, 14.125, 15.9}) {
        SCOPED_TRACE(at);
        s.PlayTo(at);
        auto const t = static_cast<double>(s.Time());
        EXPECT_THAT(values(s.Entity(tag).GetPos()), near({-0.12, 0, tag_depth(t / static_cast<double>(beat))}, 1e-3));
        double const turning = t - static_cast<double>(first);
        EXPECT_THAT(values(s.Entity(tag).GetRot()), near({5 * turning, -7 * turning, turning}, 1e-3));
    }
}

TEST(Intro, LooksSlightlyToOneSide) {
    Stage s(intro_scene);
    for (double const at : {0.0, 15.9}) EXPECT_THAT(camera(s.PlayTo(at)), near({-0.15, 0, 1.4, -0.145, 0.05, -1}));
}

TEST(Intro, BreaksTheGlassIntoPiecesThatFlyOn) {
    Stage s(intro_scene);
    auto const place = [] {
        intro_camera();
        glTranslatef(0, 0, -1.5f);
    };
    s.PlayTo(12.2);
    EXPECT_THAT(farthest(s, "glass#", place), testing::Each(testing::Lt(1e-4)));
    s.PlayTo(12.25);
    s.Step(); // the event arrives after the glass has been updated
    float const start = s.Time();
    s.PlayTo(14.25);
    double const amount = static_cast<double>(s.Time() - start);
    auto const most = farthest(s, "glass#", place);
    double const bounds[] = {3, 3, 5};
    for (std::size_t axis = 0; axis < 3; ++axis) {
        EXPECT_LT(most[axis], bounds[axis] * amount * 1.05) << axis; // the camera is turned a little
        EXPECT_GT(most[axis], bounds[axis] * amount * 0.97) << axis;
    }
}

} // namespace
