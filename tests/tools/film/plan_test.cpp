// SPDX-License-Identifier: MIT
#include "tools/film/plan.h"

#include <gtest/gtest.h>

namespace {

// Two scenes of 11 beats, which are 300 frames at 60 a second, and music that goes on for 1.5 frames more.
Timetable const timetable = {{"first", "The First", 0, 11, {}}, {"second", "Second", 11, 11, {}}};
constexpr Soundtrack music{600 * 800 + 1200, 48000};

struct Planned {
    FilmPlan plan;
    std::string error;
};

Planned plan(FilmOptions const& options, std::string const& scene = "", FrameRate rate = {60}) {
    Planned planned;
    planned.error = plan_film(timetable, scene, options, rate, music, planned.plan);
    return planned;
}

} // namespace

TEST(FilmPlans, AreAsLongAsTheMusic) {
    FilmPlan const whole = plan({}).plan;
    EXPECT_EQ(whole, (FilmPlan{{60}, 0, 602, 600, 602}));
    EXPECT_EQ(whole.Count(), 602);
    EXPECT_EQ(plan({}, "", {30}).plan, (FilmPlan{{30}, 0, 301, 300, 301}));
    FilmPlan silent;
    EXPECT_EQ(plan_film(timetable, "", {}, {60}, {}, silent), "");
    EXPECT_EQ(silent, (FilmPlan{{60}, 0, 600, 600, 600})) << "as long as the show where there is no music";
}

TEST(FilmPlans, HoldTheLastPictureWhileTheMusicFades) {
    FilmPlan const whole = plan({}).plan;
    EXPECT_EQ(whole.PictureOf(0), 0);
    EXPECT_EQ(whole.PictureOf(599), 599);
    EXPECT_EQ(whole.PictureOf(600), 599);
    EXPECT_EQ(whole.PictureOf(601), 599);
    EXPECT_EQ(whole.FirstPicture(), 0);
    EXPECT_EQ(whole.EndOfPictures(), 600);
    FilmPlan const tail = plan({.frames = FrameRange{601, {}}}).plan;
    EXPECT_EQ(tail.Count(), 1);
    EXPECT_EQ(tail.FirstPicture(), 599);
    EXPECT_EQ(tail.EndOfPictures(), 600);
    FilmPlan const part = plan({.frames = FrameRange{100, 200}}).plan;
    EXPECT_EQ(part.FirstPicture(), 100);
    EXPECT_EQ(part.EndOfPictures(), 200);
}

TEST(FilmPlans, CutAtBeatsScenesAndFrames) {
    struct Case {
        char const* what;
        FilmOptions options;
        char const* scene;
        int first;
        int end;
    };
    // clang-format off
    Case const cases[] = {
        {"from a beat to the end of the music", {.from = 11000},               "",       300, 602},
        {"to the end of the show",              {.to = 22000},                 "",       0,   600},
        {"between beats",                       {.from = 500, .to = 1000},     "",       14,  28},
        {"a scene",                             {},                            "first",  0,   300},
        {"the last scene, without the tail",    {},                            "SECOND", 300, 600},
        {"part of a scene",                     {.from = 1000},                "second", 328, 600},
        {"part of a scene, from its start",     {.to = 1000},                  "second", 300, 328},
        {"frames",                              {.frames = FrameRange{5, 9}},  "",       5,   9},
        {"frames from the start",               {.frames = FrameRange{{}, 9}}, "",       0,   9},
    };
    // clang-format on
    for (Case const& c : cases) {
        SCOPED_TRACE(c.what);
        Planned const planned = plan(c.options, c.scene);
        EXPECT_EQ(planned.error, "");
        EXPECT_EQ(planned.plan, (FilmPlan{{60}, c.first, c.end, 600, 602}));
    }
}

TEST(FilmPlans, JoinWithoutGapsAndWithoutOverlaps) {
    for (FrameRate const rate : {FrameRate{24}, FrameRate{60000, 1001}, FrameRate{144}}) {
        int const cut = plan({.to = 7300}, "", rate).plan.end;
        EXPECT_EQ(plan({.from = 7300}, "", rate).plan.first, cut);
        EXPECT_EQ(plan({}, "first", rate).plan.end, plan({}, "second", rate).plan.first);
    }
}

TEST(FilmPlans, SayWhatTheyCannotCut) {
    // clang-format off
    std::tuple<FilmOptions, char const*, char const*> const cases[] = {
        {{},                              "third", "no scene is called 'third'; there are first, second"},
        {{.from = 22001},                 "",      "beat 22.001 lies past the end of the show, which has 22 beats"},
        {{.to = 11500},                   "first", "beat 11.5 lies past the end of The First, which has 11 beats"},
        {{.from = 1001, .to = 1002},      "",      "there is no frame between these beats"},
        {{.frames = FrameRange{0, 603}},  "",      "there is no frame 602: the film has 602, counted from 0"},
        {{.frames = FrameRange{602, {}}}, "",      "there is no frame 602: the film has 602, counted from 0"},
    };
    // clang-format on
    for (auto const& [options, scene, line] : cases) {
        Planned const planned = plan(options, scene);
        EXPECT_EQ(planned.error, line);
        EXPECT_EQ(planned.plan, FilmPlan{}) << "unchanged";
    }
}
