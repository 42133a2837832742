// SPDX-License-Identifier: MIT
// Every scene's timeline, compared with tables of its own: what is on when, which events fire when, and whom they
// reach.

#include "effekt/blinker.h"
#include "tests/show/scores.h"
#include "tests/show/stage.h"

#include <algorithm>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using scores::Event;
using scores::Score;
using scores::Window;
using stage::beat;

namespace {

constexpr int last_time = 10000; // hundredths of a beat: beyond every scene

/// The blinkers of a scene, in the order of their enablers.
std::vector<effect::Blinker*> blinkers_of(kore::Scene& scene) {
    std::vector<effect::Blinker*> blinkers;
    for (auto const& enabler : scene.GetEnablers()) {
        if (auto* blinker = dynamic_cast<effect::Blinker*>(enabler->GetEntity().get())) blinkers.push_back(blinker);
    }
    return blinkers;
}

/// A target that records what reaches it.
class Ear final : public kore::BlinkerInterface {
public:
    void Blink(BlinkerType const& type, int const& value) override { heard.push_back({now, type, value}); }
    void DrawWireframe(bool) override {}
    void DrawSolid(bool) override {}
    void drawNegativeColor() override {}
    void drawColor() override {}
    void SetColor(int) override {}
    bool BlinkerStarted() override { return true; }

    int now = 0; ///< hundredths of a beat
    std::vector<Event> heard;
};

/// Runs a blinker alone in steps, each step half a hundredth of a beat late.
/// @param step  hundredths of a beat
std::vector<Event> listen(effect::Blinker& blinker, int step, float length_of_beat) {
    auto ear = std::make_shared<Ear>();
    blinker.Add(ear);
    for (ear->now = 0; ear->now <= last_time; ear->now += step) {
        kore::StateData state;
        state.time = length_of_beat * (static_cast<float>(ear->now) + 0.5f) / 100;
        blinker.UpdateLogic(state);
    }
    return ear->heard;
}

std::vector<Event> in_order_of_time(std::vector<Event> events) {
    std::stable_sort(events.begin(), events.end(), [](Event const& a, Event const& b) { return a.at < b.at; });
    return events;
}

TEST(Timeline, HasEveryEnablerInItsPlace) {
    for (Score const& score : scores::all()) {
        SCOPED_TRACE(score.title);
        stage::Stage s(score.make);
        EXPECT_STREQ(s.Scene().Name(), score.title);
        EXPECT_EQ(s.Scene().GetLength(), score.length);
        std::vector<Window> windows;
        for (auto const& e : s.Scene().GetEnablers()) {
            windows.push_back({e->GetEntity()->Name(), e->GetStartBeat(), e->GetLength(), e->RelativeToCamera()});
        }
        EXPECT_THAT(windows, testing::ElementsAreArray(score.windows));
    }
}

/// Runs every blinker of every scene alone.
/// @param step            hundredths of a beat
/// @param length_of_beat  seconds
/// @param expected        gives what a blinker with these events should fire
void expect_blinks(int step, float length_of_beat,
                   std::function<std::vector<Event>(std::vector<Event> const&)> const& expected) {
    for (Score const& score : scores::all()) {
        SCOPED_TRACE(score.title);
        stage::Stage s(score.make, length_of_beat);
        EXPECT_EQ(s.Scene().GetLength(), score.length);
        auto const blinkers = blinkers_of(s.Scene());
        ASSERT_EQ(blinkers.size(), score.blinks.size());
        for (std::size_t b = 0; b < blinkers.size(); ++b) {
            SCOPED_TRACE(testing::Message() << "blinker " << b);
            EXPECT_THAT(listen(*blinkers[b], step, length_of_beat),
                        testing::ElementsAreArray(expected(score.blinks[b])));
        }
    }
}

TEST(Timeline, FiresEveryEventAtItsTime) { expect_blinks(1, beat, in_order_of_time); }

TEST(Timeline, MovesWithTheTempo) { expect_blinks(1, 1.5f, in_order_of_time); }

TEST(Timeline, KeepsEveryEventForTwoBeats) {
    // Frames five beats apart: what begins in the two beats before one fires there, in the order of the entries, and
    // the rest never does.
    constexpr int step = 500;
    expect_blinks(step, beat, [](std::vector<Event> const& events) {
        std::vector<Event> expected;
        for (int at = 0; at <= last_time; at += step) {
            for (Event const& e : events) {
                if (e.at <= at && at < e.at + 200) expected.push_back({at, e.type, e.value});
            }
        }
        return expected;
    });
}

/// The grey level that an effect would draw with.
int level(kore::BlinkerInterface& effect) {
    gl::clear_log();
    effect.drawColor();
    int grey = -1;
    std::sscanf(gl::calls().c_str(), "Color(%d", &grey);
    return grey;
}

TEST(Timeline, ReachesEachBlinkersOwnTargetsOnly) {
    for (Score const& score : scores::all()) {
        SCOPED_TRACE(score.title);
        stage::Stage s(score.make);
        auto const blinkers = blinkers_of(s.Scene());
        std::size_t const count = s.Scene().GetEnablers().size();
        std::vector<kore::BlinkerInterface*> effects;
        for (std::size_t i = 0; i < count; ++i) {
            effects.push_back(dynamic_cast<kore::BlinkerInterface*>(&s.Entity(i)));
            if (effects.back()) s.Entity(i).UpdateLogic({}); // now events reach it
        }
        for (std::size_t b = 0; b < blinkers.size(); ++b) {
            std::vector<std::size_t> reached;
            std::vector<int> before;
            for (auto* effect : effects) before.push_back(effect ? level(*effect) : 0);
            blinkers[b]->Update(kore::BlinkerInterface::Invert, 1);
            for (std::size_t i = 0; i < count; ++i) {
                if (effects[i] && level(*effects[i]) != before[i]) reached.push_back(i);
            }
            blinkers[b]->Update(kore::BlinkerInterface::Invert, 0);
            EXPECT_EQ(reached, score.targets[b]) << "blinker " << b;
        }
    }
}

} // namespace
