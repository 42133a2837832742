// SPDX-License-Identifier: MIT
#include "tests/show/scores.h"
#include "tests/show/stage.h"
#include "tests/show/wholeshow.h"
#include "tests/support/glstate.h"

#include <gtest/gtest.h>
#include <map>

namespace {

struct Played {
    std::vector<std::pair<std::string, int>> starts; ///< name of the scene, show beat
    int end = 0;                                     ///< show beat
    std::map<std::string, std::size_t> most_errors;  ///< of a frame, by scene
    std::size_t deepest = 0;                         ///< matrices on the stack after a frame
};

std::vector<std::pair<std::string, int>> expected_starts() {
    std::vector<std::pair<std::string, int>> starts;
    for (std::size_t i = 0; i < scores::all().size(); ++i) {
        starts.push_back({scores::all()[i].title, scores::first_beat(i)});
    }
    return starts;
}

Played play_in_virtual_time(float fps) {
    gl::reset(gl::Logging::Sums);
    Played run;
    run.end = wholeshow::play(
        fps, [] { gl::detail::state().raised.clear(); },
        [&](wholeshow::Frame const& frame) {
            if (frame.first) run.starts.push_back({frame.scene, frame.beat_count});
            run.deepest = std::max(run.deepest, gl::model_view_depth());
            std::size_t& most = run.most_errors[frame.scene];
            most = std::max(most, gl::errors().size());
        });
    return run;
}

TEST(Show, PlaysItsScenesOneAfterTheOther) {
    Played const run = play_in_virtual_time(60);
    EXPECT_EQ(run.starts, expected_starts());
    EXPECT_EQ(run.end, scores::show_beats);

    // The stack is as deep after each frame as before. Only two effects issue calls that OpenGL refuses.
    EXPECT_EQ(run.deepest, 1u);
    for (auto const& [title, most] : run.most_errors) {
        if (title == title_of(gungirl_scene)) {
            EXPECT_EQ(most, 1u);
        } else if (title == title_of(wire_scene)) {
            // Inside the primitive four matrix calls and a glBegin, then a glEnd too many and two pops too many.
            EXPECT_EQ(most, 8u);
        } else {
            EXPECT_EQ(most, 0u) << title;
        }
    }
}

TEST(Show, ChangesScenesOnTheSameBeatsAtAnyFrameRate) {
    // From more than one frame a beat up to many.
    for (float const fps : {5.0f, 7.0f, 24.0f}) EXPECT_EQ(play_in_virtual_time(fps).starts, expected_starts());
}

TEST(Show, HasTheScenesOfItsRunningOrderWithTheirLengths) {
    gl::reset();
    kore::Demo demo(stage::beat);
    init_demo(demo, nullptr, stage::beat);
    ASSERT_EQ(demo.GetScenes().size(), scores::all().size());
    ASSERT_EQ(running_order().size(), scores::all().size());
    for (std::size_t i = 0; i < scores::all().size(); ++i) {
        scores::Score const& score = scores::all()[i];
        EXPECT_STREQ(demo.GetScenes()[i]->Name(), score.title);
        EXPECT_EQ(demo.GetScenes()[i]->GetLength(), score.length) << score.title;
        EXPECT_STREQ(running_order()[i].title, score.title);
        EXPECT_EQ(running_order()[i].make, score.make) << score.title;
    }
    EXPECT_EQ(models->GetDirectory(), "data/");
}

TEST(Show, LastsAsLongAsItsScenes) { EXPECT_EQ(scores::first_beat(scores::all().size()), scores::show_beats); }

TEST(Show, StartsWithALibraryOfItsOwn) {
    gl::reset();
    auto const before = std::make_shared<kore::AscModel>("elsewhere/");
    models = before;
    kore::Demo demo(stage::beat);
    init_demo(demo, nullptr, stage::beat);
    EXPECT_NE(models, before);
    std::size_t const size = models->size();
    kore::Demo again(stage::beat);
    init_demo(again, nullptr, stage::beat);
    EXPECT_EQ(models->size(), size);
}

TEST(Show, LeavesTheBackdropsTranslationOnTheMatrixUntilTheNextFrame) {
    for (auto* make : {intro_scene, swapper_scene, credits_scene, plasma_scene, fountain_scene, greets_scene}) {
        stage::Stage s(make);
        SCOPED_TRACE(s.Scene().Name());
        s.PlayTo(1).Draw();
        EXPECT_EQ(gl::model_view()[14], -1500);
        EXPECT_EQ(gl::model_view_depth(), 1u);
    }
}

} // namespace
