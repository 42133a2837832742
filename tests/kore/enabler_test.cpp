// SPDX-License-Identifier: MIT
#include "kore/cameraenabler.h"
#include "kore/enabler.h"
#include "tests/kore/probes.h"

#include <gtest/gtest.h>

using namespace kore;
using probes::at_beat;
using probes::beat;
using probes::Events;
using probes::SetX;
using probes::Thing;
using testing::ElementsAre;

namespace {

TEST(Enabler, KeepsWhatItWasMadeWith) {
    auto thing = std::make_shared<Thing>();
    Enabler const enabler(thing, 4, 8, beat, true);
    EXPECT_EQ(enabler.GetEntity(), thing);
    EXPECT_EQ(enabler.GetStartBeat(), 4);
    EXPECT_EQ(enabler.GetLength(), 8);
    EXPECT_TRUE(enabler.RelativeToCamera());
    EXPECT_FALSE(enabler.GetDrawingEnabled());
    EXPECT_FALSE(Enabler(thing, 4, 8, beat, false).RelativeToCamera());
}

TEST(Enabler, IsOpenFromItsStartBeatUpToButNotIncludingStartPlusLength) {
    struct {
        int start, length, at;
        bool open;
        // clang-format off
    } const rows[] = {
        {4, 8, -1, false},
        {4, 8, 3,  false},
        {4, 8, 4,  true},
        {4, 8, 11, true},
        {4, 8, 12, false},
        {0, 1, -1, false}, // not before the first beat
        {0, 1, 0,  true},
        {0, 1, 1,  false},
        {0, 0, 0,  false}, // never
    };
    // clang-format on
    for (auto const& row : rows) {
        SCOPED_TRACE(testing::Message() << row.length << " beats from " << row.start << ", at " << row.at);
        auto thing = std::make_shared<Thing>();
        Enabler enabler(thing, row.start, row.length, beat, true);
        enabler.UpdateLogic(at_beat(row.at));
        EXPECT_EQ(enabler.GetDrawingEnabled(), row.open);
        EXPECT_EQ(thing->updates, row.open ? 1 : 0);
        gl::reset();
        enabler.Draw(true);
        EXPECT_EQ(gl::draws().size(), row.open ? 1u : 0u);
    }
}

TEST(Enabler, LooksAtWholeBeatsAndNotAtTheTime) {
    Enabler enabler(std::make_shared<Thing>(), 4, 8, beat, true);
    StateData state = at_beat(3);
    state.time = 5 * beat;
    enabler.UpdateLogic(state);
    EXPECT_FALSE(enabler.GetDrawingEnabled());
}

TEST(Enabler, RunsTheEntitysLogicAndThenTheMutatorsInTheOrderAdded) {
    Events events;
    Enabler enabler(std::make_shared<Thing>("thing", &events), 0, 2, beat, true);
    enabler.AddMutator(std::make_shared<SetX>("first", 1.0f, &events));
    enabler.AddMutator(std::make_shared<SetX>("second", 2.0f, &events));
    enabler.UpdateLogic(at_beat(0));
    EXPECT_THAT(events, ElementsAre("thing", "first", "second"));
    EXPECT_EQ(enabler.GetEntity()->GetPos().x, 2); // of two that set the position the later one wins
}

TEST(Enabler, LeavesTheEntityAloneOutsideItsWindow) {
    Events events;
    auto thing = std::make_shared<Thing>("thing", &events);
    Enabler enabler(thing, 1, 1, beat, true);
    enabler.AddMutator(std::make_shared<SetX>("mutator", 3.0f, &events));
    enabler.UpdateLogic(at_beat(0));
    EXPECT_THAT(events, testing::IsEmpty());
    EXPECT_EQ(thing->GetPos().x, 0);
    enabler.UpdateLogic(at_beat(1));
    enabler.UpdateLogic(at_beat(2));
    EXPECT_THAT(events, ElementsAre("thing", "mutator"));
    EXPECT_EQ(thing->GetPos().x, 3); // and it stays where it was
}

TEST(Enabler, DrawsInItsOwnPassOnly) {
    for (bool const relative : {true, false}) {
        SCOPED_TRACE(relative);
        Enabler enabler(std::make_shared<Thing>(), 0, 1, beat, relative);
        enabler.UpdateLogic(at_beat(0));
        gl::reset();
        enabler.Draw(!relative);
        EXPECT_EQ(gl::call_count(), 0u);
        enabler.Draw(relative);
        EXPECT_EQ(gl::draws().size(), 1u);
    }
}

TEST(Enabler, DrawsWithTheLastMutatorsPosition) {
    gl::reset();
    Enabler enabler(std::make_shared<Thing>(), 0, 1, beat, true);
    enabler.AddMutator(std::make_shared<SetX>("first", 1.0f));
    enabler.AddMutator(std::make_shared<SetX>("second", 2.0f));
    enabler.UpdateLogic(at_beat(0));
    enabler.Draw(true);
    EXPECT_EQ(gl::draws().at(0).model_view[12], 2);
}

TEST(CameraEnabler, MovesItsCameraOnEveryFrameWhateverTheBeat) {
    auto camera = std::make_shared<effect::Camera>();
    CameraEnabler enabler(camera);
    Events events;
    enabler.AddMutator(std::make_shared<SetX>("first", 1.0f, &events));
    enabler.AddMutator(std::make_shared<SetX>("second", 2.0f, &events));
    enabler.UpdateLogic(at_beat(-1));
    EXPECT_THAT(events, ElementsAre("first", "second"));
    EXPECT_EQ(enabler.GetCamera(), camera);
    EXPECT_EQ(camera->GetPos().x, 2);

    gl::reset();
    enabler.Draw();
    EXPECT_EQ(gl::calls(), "LookAt(2,0,0,0,0,0,0,1,0)");
}

} // namespace
