// SPDX-License-Identifier: MIT
#include "kore/camera.h"
#include "kore/demo.h"
#include "tests/kore/probes.h"

#include <gtest/gtest.h>
#include <map>

using namespace kore;
using probes::beat;
using probes::Events;
using probes::Thing;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class NamedPrepare final : public ScenePrepare {
public:
    NamedPrepare(std::string name_, Events& events_) : name(std::move(name_)), events(events_) {}
    void Start() override { events.push_back("start " + name); }
    void Stop() override { events.push_back("stop " + name); }

private:
    std::string name;
    Events& events;
};

/// Three scenes of 16, 32 and 8 beats, each with one thing in it.
class Demo : public testing::Test {
protected:
    Demo() {
        gl::reset();
        int const lengths[] = {16, 32, 8};
        for (int i = 0; i < 3; ++i) {
            std::string const name(1, static_cast<char>('A' + i));
            auto scene = std::make_shared<Scene>(name);
            things.push_back(std::make_shared<Thing>(name));
            scene->AddEnabler(std::make_shared<Enabler>(things.back(), 0, lengths[i], beat, true));
            scene->AddCamera(std::make_shared<Enabler>(std::make_shared<effect::Camera>(), 0, 64, beat, true));
            scene->SetPrepare(std::make_shared<NamedPrepare>(name, events));
            demo.AddScene(scene);
        }
    }

    /// One frame, a tenth of a beat after its beat.
    void Frame(int at, bool new_beat = true) {
        StateData state;
        state.beat_count = at;
        state.time = (static_cast<float>(at) + 0.1f) * beat;
        state.new_beat = new_beat;
        state.fps = 50;
        demo.UpdateLogic(state);
    }
    std::string Drawn() {
        gl::clear_log();
        demo.Draw(true);
        return gl::draws().empty() ? "" : gl::draws()[0].name;
    }

    Events events;
    std::vector<std::shared_ptr<Thing>> things;
    kore::Demo demo{beat};
};

TEST_F(Demo, PlaysItsScenesOneAfterAnotherOnTheBeatGrid) {
    struct {
        int at;
        char const* scene;
        int beat_in_scene;
        // clang-format off
    } const rows[] = {
        {0,  "A", 0},
        {15, "A", 15},
        {16, "B", 0},
        {47, "B", 31},
        {48, "C", 0},
        {55, "C", 7},
    };
    // clang-format on
    std::map<std::string, std::shared_ptr<Thing>> const by_name = {
        {"A", things[0]},
        {"B", things[1]},
        {"C", things[2]},
    };
    for (auto const& row : rows) {
        SCOPED_TRACE(row.at);
        Frame(row.at);
        EXPECT_EQ(Drawn(), row.scene);
        EXPECT_EQ(by_name.at(row.scene)->last.beat_count, row.beat_in_scene);
        EXPECT_FALSE(demo.GetFinished());
    }
    Frame(56);
    EXPECT_TRUE(demo.GetFinished());
    EXPECT_EQ(Drawn(), "");
}

TEST_F(Demo, StartsAndStopsEverySceneOnce) {
    for (int at = 0; at <= 56; ++at) Frame(at);
    EXPECT_THAT(events, ElementsAre("start A", "stop A", "start B", "stop B", "start C", "stop C"));
    Frame(57); // nothing more happens once finished
    EXPECT_EQ(events.size(), 6u);
}

TEST_F(Demo, HandsOutTimeSinceTheScenesFirstBeatOfTheGrid) {
    Frame(0);
    for (int at = 1; at < 16; ++at) Frame(at);
    Frame(16);
    StateData const& state = things[1]->last;
    EXPECT_EQ(state.time, 16.1f * beat - static_cast<float>(16) * beat); // not 0: the switch is a little late
    EXPECT_EQ(state.beat_count, 0);
    EXPECT_TRUE(state.new_beat);
    EXPECT_EQ(state.fps, 50);
    Frame(17, false);
    EXPECT_FALSE(things[1]->last.new_beat);
}

TEST_F(Demo, StartsItsFirstSceneAtTimeZero) {
    Frame(0);
    EXPECT_EQ(things[0]->last.time, 0.1f * beat);
}

TEST_F(Demo, SkipsOnTheNextCountedBeatOnly) {
    Frame(3);
    demo.SkipSceneFw();
    Frame(3, false); // 0.2 s before the beat nothing happens
    EXPECT_EQ(Drawn(), "A");
    Frame(4);
    EXPECT_EQ(Drawn(), "B");
    EXPECT_EQ(things[1]->last.beat_count, 0);
    EXPECT_THAT(events, ElementsAre("start A", "stop A", "start B"));
    Frame(5); // a request counts once
    EXPECT_EQ(Drawn(), "B");
    EXPECT_EQ(things[1]->last.beat_count, 1);
}

TEST_F(Demo, RunsASkippedSceneToItsFullLength) {
    Frame(3);
    demo.SkipSceneFw();
    Frame(4);
    Frame(35);
    EXPECT_EQ(Drawn(), "B");
    Frame(36);
    EXPECT_EQ(Drawn(), "C");
}

TEST_F(Demo, GoesOnWithTheFirstSceneWhenTheLastOneIsSkipped) {
    for (int at : {0, 16, 48}) Frame(at);
    demo.SkipSceneFw();
    Frame(49);
    EXPECT_EQ(Drawn(), "A");
    EXPECT_EQ(things[0]->last.beat_count, 0);
    EXPECT_FALSE(demo.GetFinished());
}

TEST_F(Demo, StartsTheFirstSceneAgainWhenItIsSkippedBackwards) {
    Frame(5);
    demo.SkipSceneBw();
    Frame(6);
    EXPECT_EQ(Drawn(), "A");
    EXPECT_EQ(things[0]->last.beat_count, 0);
    EXPECT_THAT(events, ElementsAre("start A", "stop A", "start A"));
}

TEST_F(Demo, SkipsBackToTheSceneBefore) {
    Frame(0);
    Frame(16);
    demo.SkipSceneBw();
    Frame(17);
    EXPECT_EQ(Drawn(), "A");
}

TEST_F(Demo, TakesTheLastOfTwoRequests) {
    Frame(0);
    Frame(16);
    demo.SkipSceneBw();
    demo.SkipSceneFw();
    Frame(17);
    EXPECT_EQ(Drawn(), "C");
}

TEST_F(Demo, DoesNotResetASceneThatIsPlayedAgain) {
    Frame(0);
    things[0]->SetPos({1, 2, 3});
    Frame(16);
    demo.SkipSceneBw();
    Frame(17);
    EXPECT_THAT(things[0]->GetPos(), probes::Is(1, 2, 3));
}

TEST_F(Demo, PassesOnWhetherTheScenesCameraIsUsed) {
    Frame(0);
    gl::clear_log();
    demo.Draw(false);
    EXPECT_THAT(gl::calls(), testing::Not(testing::HasSubstr("LookAt")));
    gl::clear_log();
    demo.Draw(true);
    EXPECT_THAT(gl::calls(), testing::HasSubstr("LookAt"));
}

TEST_F(Demo, KeepsItsScenesInPlayingOrder) {
    std::string names;
    for (auto const& scene : demo.GetScenes()) names += scene->Name();
    EXPECT_EQ(names, "ABC");
}

} // namespace
