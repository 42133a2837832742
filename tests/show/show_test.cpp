#include "tests/show/stage.h"
#include "tests/show/wholeshow.h"
#include "tests/support/glstate.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>

using testing::ElementsAre;
using testing::Pair;

namespace {

struct Playback {
    std::vector<std::pair<std::string, int>> starts; ///< name of the scene, show beat
    int end = 0;                                     ///< show beat
    std::uint64_t calls = 0;
    std::uint64_t sum = 0;
    std::map<std::string, std::size_t> most_errors; ///< of a frame, by scene
    std::size_t deepest = 0;                        ///< matrices on the stack after a frame
};

Playback play_in_virtual_time(float fps) {
    gl::reset(gl::Logging::Sums);
    Playback run;
    run.end = wholeshow::play(
        fps, [] { gl::detail::state().raised.clear(); },
        [&](wholeshow::Frame const& frame) {
            if (frame.first) run.starts.push_back({frame.scene, frame.beat_count});
            run.deepest = std::max(run.deepest, gl::model_view_depth());
            std::size_t& most = run.most_errors[frame.scene];
            most = std::max(most, gl::errors().size());
        });
    run.calls = gl::call_count();
    run.sum = gl::checksum();
    return run;
}

TEST(Show, PlaysItsEightScenesForThreeHundredAndEightyFourBeatsTheSameOnEveryRun) {
    Playback const run = play_in_virtual_time(60);
    EXPECT_THAT(run.starts,
                ElementsAre(Pair("Intro", 0), Pair("Gun Girl", 16), Pair("Swapper", 64), Pair("Credits", 160),
                            Pair("Tunnelgate", 184), Pair("Plasma", 256), Pair("Fountain", 288), Pair("Greets", 352)));
    EXPECT_EQ(run.end, 384);

    // The stack is as deep after each frame as before. OpenGL is asked for what it refuses by two effects only.
    EXPECT_EQ(run.deepest, 1u);
    EXPECT_EQ(run.most_errors.at("Gun Girl"), 1u);
    EXPECT_GT(run.most_errors.at("Tunnelgate"), 1u);
    for (char const* name : {"Intro", "Swapper", "Credits", "Plasma", "Fountain", "Greets"}) {
        EXPECT_EQ(run.most_errors.at(name), 0u) << name;
    }

    Playback const again = play_in_virtual_time(60);
    EXPECT_EQ(again.calls, run.calls);
    EXPECT_EQ(again.sum, run.sum);
}

TEST(Show, ChangesScenesOnTheSameBeatsAtAnyFrameRate) {
    EXPECT_EQ(play_in_virtual_time(7).starts, play_in_virtual_time(5).starts);
}

TEST(Show, HasEightScenesOfTheirLengths) {
    gl::reset();
    kore::Demo demo(stage::beat);
    init_demo(demo, nullptr, stage::beat);
    std::vector<std::pair<std::string, int>> scenes;
    for (auto const& scene : demo.GetScenes()) scenes.push_back({scene->Name(), scene->GetLength()});
    EXPECT_THAT(scenes,
                ElementsAre(Pair("Intro", 16), Pair("Gun Girl", 48), Pair("Swapper", 96), Pair("Credits", 24),
                            Pair("Tunnelgate", 72), Pair("Plasma", 32), Pair("Fountain", 64), Pair("Greets", 32)));
    EXPECT_EQ(models->GetDirectory(), "data/");
}

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
