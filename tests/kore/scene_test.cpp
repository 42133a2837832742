// SPDX-License-Identifier: MIT
#include "kore/camera.h"
#include "kore/scene.h"
#include "tests/kore/probes.h"

#include <gtest/gtest.h>

using namespace kore;
using probes::at_beat;
using probes::beat;
using probes::Events;
using probes::Thing;
using testing::ElementsAre;

namespace {

constexpr char const* clear = "ClearColor(0,0,0,0) Clear(COLOR|DEPTH)";

std::string drawn(std::string const& name) {
    return " PushMatrix Translate(0,0,0) PushMatrix Rotate(0,1,0,0) Rotate(0,0,1,0) Rotate(0,0,0,1) CallList(" + name +
           ") PopMatrix PopMatrix";
}

class Scene : public testing::Test {
protected:
    Scene() {
        gl::reset();
        camera->SetPos({0, 0, 10});
        scene.AddCamera(std::make_shared<Enabler>(camera, 0, 64, beat, true));
    }
    void Add(std::string const& name, int start, int length, bool relative) {
        scene.AddEnabler(
            std::make_shared<Enabler>(std::make_shared<Thing>(name, &events), start, length, beat, relative));
    }

    Events events;
    std::shared_ptr<effect::Camera> camera = std::make_shared<effect::Camera>();
    kore::Scene scene{"Harbour"};
};

TEST_F(Scene, HasTheNameItWasGiven) { EXPECT_STREQ(scene.Name(), "Harbour"); }

TEST_F(Scene, IsAsLongAsItsLatestEnablerWhateverTheCameraDoes) {
    EXPECT_EQ(scene.GetLength(), 0);
    Add("a", 8, 32, true);
    EXPECT_EQ(scene.GetLength(), 40);
    Add("b", 0, 16, true);
    EXPECT_EQ(scene.GetLength(), 40);
    Add("c", 40, 1, false);
    EXPECT_EQ(scene.GetLength(), 41);
    EXPECT_EQ(scene.GetEnablers().size(), 3u);
}

TEST_F(Scene, HandsOutItsCamera) {
    EXPECT_EQ(scene.GetCamera()->GetEntity(), camera);
    EXPECT_FALSE(kore::Scene("Empty").GetCamera());
}

TEST_F(Scene, UpdatesItsCameraAndThenItsEnablersInOrder) {
    auto moved = std::make_shared<Enabler>(camera, 0, 64, beat, true);
    moved->AddMutator(std::make_shared<probes::SetX>("camera", 1.0f, &events));
    scene.AddCamera(moved); // a later camera replaces the one before
    Add("a", 0, 1, false);
    Add("b", 0, 1, true);
    scene.UpdateLogic(at_beat(0));
    EXPECT_THAT(events, ElementsAre("camera", "a", "b"));
}

TEST_F(Scene, DrawsWhatStandsInTheCamerasViewAndThenTheRest) {
    Add("sky", 0, 4, false);
    Add("boat", 0, 4, true);
    Add("lamp", 2, 2, true); // not yet
    Add("sea", 0, 4, true);
    scene.UpdateLogic(at_beat(0));
    scene.Draw(true);
    EXPECT_EQ(gl::calls(), std::string("PushMatrix ") + clear + " LookAt(0,0,10,0,0,0,0,1,0)" + drawn("boat") +
                               drawn("sea") + " PopMatrix" + drawn("sky"));
    EXPECT_EQ(gl::model_view_depth(), 1u);
    EXPECT_THAT(gl::errors(), testing::IsEmpty());
}

TEST_F(Scene, DrawsTheRestOutsideTheCamerasView) {
    Add("sky", 0, 4, false);
    Add("boat", 0, 4, true);
    scene.UpdateLogic(at_beat(0));
    glTranslatef(0, 1, 0); // the view of the caller
    gl::clear_log();
    scene.Draw(true);
    ASSERT_EQ(gl::draws().size(), 2u);
    EXPECT_EQ(gl::draws()[0].model_view[14], -10);
    EXPECT_EQ(gl::draws()[0].model_view[13], 1);
    EXPECT_EQ(gl::draws()[1].model_view[14], 0);
    EXPECT_EQ(gl::draws()[1].model_view[13], 1);
}

TEST_F(Scene, LeavesItsCameraOutForTheFreeCamera) {
    Add("boat", 0, 4, true);
    Add("sky", 0, 4, false);
    scene.UpdateLogic(at_beat(0));
    scene.Draw(false);
    EXPECT_EQ(gl::calls(), std::string("PushMatrix ") + clear + drawn("boat") + " PopMatrix" + drawn("sky"));
}

TEST_F(Scene, NeverDrawsACameraThatIsNotInTheCamerasView) {
    scene.AddCamera(std::make_shared<Enabler>(camera, 0, 64, beat, false));
    scene.UpdateLogic(at_beat(0));
    scene.Draw(true);
    EXPECT_EQ(gl::calls(), std::string("PushMatrix ") + clear + " PopMatrix");
}

TEST_F(Scene, KeepsAClearColourAndClearsWithThePreparationsOwn) {
    scene.SetClearColor({1, 1, 1, 1});
    scene.UpdateLogic(at_beat(0));
    scene.Draw(false);
    EXPECT_EQ(gl::calls(), std::string("PushMatrix ") + clear + " PopMatrix");
}

class LoudPrepare final : public ScenePrepare {
public:
    explicit LoudPrepare(Events& events_) : events(events_) { clear_color = {0.25f, 0.5f, 0.75f, 1}; }
    void Start() override { events.push_back("start"); }
    void Stop() override { events.push_back("stop"); }

private:
    Events& events;
};

TEST_F(Scene, NotifiesItsPreparationOfStartAndStopAndLetsItClear) {
    scene.SetPrepare(std::make_shared<LoudPrepare>(events));
    scene.Start();
    scene.Stop();
    EXPECT_THAT(events, ElementsAre("start", "stop"));
    scene.UpdateLogic(at_beat(0));
    scene.Draw(false);
    EXPECT_EQ(gl::calls(), "PushMatrix ClearColor(0.25,0.5,0.75,1) Clear(COLOR|DEPTH) PopMatrix");
}

TEST(ScenePrepare, ClearsColourAndDepthToBlackWithAlphaZero) {
    gl::reset();
    kore::ScenePrepare prepare;
    prepare.Start();
    prepare.Stop();
    EXPECT_EQ(gl::call_count(), 0u);
    prepare.Draw();
    EXPECT_EQ(gl::calls(), clear);
}

} // namespace
