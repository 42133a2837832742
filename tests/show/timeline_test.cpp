// Every scene's timeline against tables of its own: who is on when, which events fire when, and who hears them.

#include "effekt/blinker.h"
#include "tests/show/stage.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using stage::beat;

namespace {

using Type = kore::BlinkerInterface::BlinkerType;
constexpr Type invert = kore::BlinkerInterface::Invert;
constexpr Type strobe = kore::BlinkerInterface::Strobe;
constexpr Type break_up = kore::BlinkerInterface::Break;
constexpr Type flip = kore::BlinkerInterface::Flip;
constexpr Type solid = kore::BlinkerInterface::Solid;

constexpr int last_time = 10000; // hundredths of a beat: beyond every scene

struct Window {
    std::string name;
    int start, length;
    bool relative;
    bool operator==(Window const&) const = default;
};

std::ostream& operator<<(std::ostream& out, Window const& w) {
    return out << w.name << ' ' << w.start << " for " << w.length << (w.relative ? " in view" : " fixed");
}

/// An event: a time in hundredths of a beat, so that it compares exactly.
struct Event {
    int at;
    Type type;
    int value;
    bool operator==(Event const&) const = default;
};

std::ostream& operator<<(std::ostream& out, Event const& e) {
    return out << e.at / 100.0 << " beats: " << e.type << ' ' << e.value;
}

struct Score {
    char const* name;
    stage::SceneFunction make;
    int length;
    std::vector<Window> windows;
    std::vector<std::vector<Event>> blinks;        ///< of each blinker, in the order of the enablers
    std::vector<std::vector<std::size_t>> targets; ///< of each blinker: indices of enablers
};

std::vector<Event> every(int beats, int count, int offset, Type type, int value) {
    std::vector<Event> events;
    for (int i = 0; i < count; ++i) events.push_back({100 * beats * i + offset, type, value});
    return events;
}

std::vector<Window> fountain_windows(int length) {
    return {
        {"Blinker",         0, length, true },
        {"Blinker",         0, length, true },
        {"Blinker",         0, length, true },
        {"Blinker",         0, length, true },
        {"FlashBackground", 0, length, false},
        {"TorusFountain",   0, length, true },
        {"SimpleModel",     0, length, true },
        {"SimpleModel",     0, length, true },
        {"SimpleModel",     0, length, true },
    };
}

std::vector<Window> greets_windows() {
    std::vector<Window> windows = fountain_windows(32);
    for (int k = 0; k < 8; ++k) windows.push_back({"SimpleModel", 2 * k, 16, true});
    return windows;
}

std::vector<std::vector<Event>> fountain_blinks() {
    return {every(4, 16, 0, strobe, 4), every(4, 16, 20, strobe, 4), every(4, 16, 40, strobe, 4),
            every(4, 16, 60, strobe, 4)};
}

std::vector<Event> swapper_blinks() {
    std::vector<Event> events = {
        {1500, strobe, 16},
        {1600, strobe, 16},
    };
    for (int k = 0; k < 6; ++k) {
        events.push_back({800 * k, break_up, 1});
        events.push_back({1600 * k + 400, strobe, 4});
    }
    for (int i = 0; i < 12; ++i) events.push_back({800 * i, break_up, 1});
    return events;
}

std::vector<Score> const& scores() {
    static std::vector<Score> const all = {
        {"Intro",
         intro_scene,                  16,
         {
             {"Blinker", 0, 16, true},
             {"Blinker", 0, 16, true},
             {"ShowModel", 0, 2, true},
             {"ShowModel", 1, 2, true},
             {"ShowModel", 2, 2, true},
             {"ShowModel", 3, 2, true},
             {"ShowModel", 4, 2, true},
             {"ShowModel", 5, 2, true},
             {"ShowModel", 6, 1, true},
             {"SimpleModel", 7, 9, true},
             {"BrokenModel", 10, 6, true},
             {"FlashBackground", 0, 16, false},
         },                                                      {{{1225, break_up, 1}, {1225, strobe, 2}, {1400, strobe, 2}}, every(1, 8, 25, strobe, 6)},
         {{9, 10, 11}, {2, 3, 4, 5, 6, 7, 8}}                                                                                                                                                     },
        {"Gun Girl",
         gungirl_scene,                48,
         {
             {"SimpleModel", 4, 44, true},
             {"BrokenModel", 0, 4, true},
             {"GyroFuck", 8, 40, true},
             {"FlashBackground", 0, 48, false},
             {"Blinker", 0, 48, true},
         },                                                      {{{0, break_up, 1}, {400, strobe, 56}, {1600, flip, 1}, {2400, flip, 0}, {3200, flip, 1}, {4000, flip, 0}}},
         {{0, 1, 2, 3}}                                                                                                                                                                           },
        {"Swapper",
         swapper_scene,                96,
         {
             {"BrokenModel", 0, 16, true},
             {"BrokenModel", 16, 16, true},
             {"BrokenModel", 32, 16, true},
             {"BrokenModel", 48, 16, true},
             {"BrokenModel", 64, 16, true},
             {"BrokenModel", 80, 16, true},
             {"SimpleModel", 0, 96, false},
             {"BrokenModel", 0, 96, true},
             {"FlashBackground", 0, 96, false},
             {"Blinker", 0, 96, true},
         },                                                      {swapper_blinks()},
         {{0, 1, 2, 3, 4, 5, 6, 7, 8}}                                                                                                                                                            },
        {"Credits",
         credits_scene,                24,
         {
             {"Blinker", 0, 24, true},
             {"SimpleModel", 0, 24, true},
             {"Blinker", 0, 24, true},
             {"SimpleModel", 0, 24, true},
             {"Blinker", 0, 24, true},
             {"SimpleModel", 0, 24, true},
             {"SimpleModel", 0, 24, true},
             {"FlashBackground", 0, 24, false},
         },                                                      {{{5, solid, 1},
           {5, strobe, 48},
           {400, solid, 0},
           {600, solid, 1},
           {700, solid, 0},
           {1200, solid, 1},
           {1300, solid, 0},
           {1500, solid, 1},
           {1600, solid, 0},
           {2100, solid, 1},
           {2200, solid, 0}},
          {{400, solid, 1},
           {500, solid, 0},
           {700, solid, 1},
           {800, solid, 0},
           {1300, solid, 1},
           {1400, solid, 0},
           {1600, solid, 1},
           {1600, strobe, 48},
           {2000, solid, 0},
           {2200, solid, 1},
           {2300, solid, 0}},
          {{500, solid, 1},
           {600, solid, 0},
           {800, solid, 1},
           {800, strobe, 48},
           {1200, solid, 0},
           {1400, solid, 1},
           {1500, solid, 0},
           {2000, solid, 1},
           {2100, solid, 0},
           {2300, solid, 1},
           {2400, solid, 0}}},
         {{1, 7}, {3, 7}, {5, 7}}                                                                                                                                                                 },
        {"Tunnelgate",
         wire_scene,                   72,
         {
             {"Blinker", 0, 72, true},
             {"FlashBackground", 0, 72, false},
             {"PulseWire", 0, 72, true},
             {"SimpleModel", 0, 72, true},
             {"SimpleModel", 0, 72, true},
         },                                                      {every(1, 80, 0, strobe, 2)},
         {{1, 2, 3, 4}}                                                                                                                                                                           },
        {"Plasma",
         plasma_scene,                 32,
         {
             {"FlashBackground", 0, 32, false},
             {"TextureMountain", 0, 32, true},
             {"SimpleModel", 0, 32, true},
             {"SimpleModel", 0, 32, true},
             {"SimpleModel", 0, 32, true},
             {"Blinker", 0, 32, true},
         },                                                      {{{0, strobe, 9000}, {2800, strobe, 9000}, {0, break_up, 1}, {2800, break_up, 1}}},
         {{2, 3, 4}}                                                                                                                                                                              },
        {"Fountain",   fountain_scene, 64, fountain_windows(64), fountain_blinks(),                                                                                           {{5}, {6}, {7}, {8}}},
        {"Greets",     greets_scene,   32, greets_windows(),     fountain_blinks(),                                                                                           {{5}, {6}, {7}, {8}}},
    };
    return all;
}

/// The blinkers of a scene, in the order of their enablers.
std::vector<effect::Blinker*> blinkers_of(kore::Scene& scene) {
    std::vector<effect::Blinker*> blinkers;
    for (auto const& enabler : scene.GetEnablers()) {
        if (auto* blinker = dynamic_cast<effect::Blinker*>(enabler->GetEntity().get())) blinkers.push_back(blinker);
    }
    return blinkers;
}

/// A target that writes down what reaches it.
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
    for (Score const& score : scores()) {
        SCOPED_TRACE(score.name);
        stage::Stage s(score.make);
        EXPECT_STREQ(s.Scene().Name(), score.name);
        EXPECT_EQ(s.Scene().GetLength(), score.length);
        std::vector<Window> windows;
        for (auto const& e : s.Scene().GetEnablers()) {
            windows.push_back({e->GetEntity()->Name(), e->GetStartBeat(), e->GetLength(), e->RelativeToCamera()});
        }
        EXPECT_THAT(windows, testing::ElementsAreArray(score.windows));
    }
}

TEST(Timeline, FiresEveryEventAtItsTime) {
    for (Score const& score : scores()) {
        SCOPED_TRACE(score.name);
        stage::Stage s(score.make);
        auto const blinkers = blinkers_of(s.Scene());
        ASSERT_EQ(blinkers.size(), score.blinks.size());
        for (std::size_t b = 0; b < blinkers.size(); ++b) {
            SCOPED_TRACE(testing::Message() << "blinker " << b);
            EXPECT_THAT(listen(*blinkers[b], 1, beat), testing::ElementsAreArray(in_order_of_time(score.blinks[b])));
        }
    }
}

TEST(Timeline, KeepsEveryEventForTwoBeats) {
    for (Score const& score : scores()) {
        SCOPED_TRACE(score.name);
        stage::Stage s(score.make);
        auto const blinkers = blinkers_of(s.Scene());
        ASSERT_EQ(blinkers.size(), score.blinks.size());
        for (std::size_t b = 0; b < blinkers.size(); ++b) {
            SCOPED_TRACE(testing::Message() << "blinker " << b);
            // Frames five beats apart: what begins in the two beats before one fires there, in the order of the
            // entries, and the rest never does.
            std::vector<Event> expected;
            for (int at = 0; at <= last_time; at += 500) {
                for (Event const& e : score.blinks[b]) {
                    if (e.at <= at && at < e.at + 200) expected.push_back({at, e.type, e.value});
                }
            }
            EXPECT_THAT(listen(*blinkers[b], 500, beat), testing::ElementsAreArray(expected));
        }
    }
}

TEST(Timeline, MovesWithTheTempo) {
    constexpr float slow = 1.5f; // seconds
    for (Score const& score : scores()) {
        SCOPED_TRACE(score.name);
        stage::Stage s(score.make, slow);
        EXPECT_EQ(s.Scene().GetLength(), score.length);
        auto const blinkers = blinkers_of(s.Scene());
        for (std::size_t b = 0; b < blinkers.size(); ++b) {
            EXPECT_THAT(listen(*blinkers[b], 1, slow), testing::ElementsAreArray(in_order_of_time(score.blinks[b])));
        }
    }
}

/// The grey level that an effect would draw with.
int level(kore::BlinkerInterface& effect) {
    gl::clear_log();
    effect.drawColor();
    int grey = -1;
    std::sscanf(gl::calls().c_str(), "Color(%d", &grey);
    return grey;
}

TEST(Timeline, TellsEachBlinkersOwnTargetsOnly) {
    for (Score const& score : scores()) {
        SCOPED_TRACE(score.name);
        stage::Stage s(score.make);
        auto const blinkers = blinkers_of(s.Scene());
        std::size_t const count = s.Scene().GetEnablers().size();
        std::vector<kore::BlinkerInterface*> effects;
        for (std::size_t i = 0; i < count; ++i) {
            effects.push_back(dynamic_cast<kore::BlinkerInterface*>(&s.Entity(i)));
            if (effects.back()) s.Entity(i).UpdateLogic({}); // now it hears
        }
        for (std::size_t b = 0; b < blinkers.size(); ++b) {
            std::vector<std::size_t> reached;
            std::vector<int> before;
            for (auto* effect : effects) before.push_back(effect ? level(*effect) : 0);
            blinkers[b]->Update(invert, 1);
            for (std::size_t i = 0; i < count; ++i) {
                if (effects[i] && level(*effects[i]) != before[i]) reached.push_back(i);
            }
            blinkers[b]->Update(invert, 0);
            EXPECT_EQ(reached, score.targets[b]) << "blinker " << b;
        }
    }
}

TEST(Timeline, HoldsNoMoreEventsThanTheScoreSays) {
    std::size_t const expected[] = {11, 6, 26, 33, 80, 4, 64, 64};
    for (std::size_t i = 0; i < scores().size(); ++i) {
        stage::Stage s(scores()[i].make);
        std::size_t events = 0;
        for (auto* blinker : blinkers_of(s.Scene())) events += listen(*blinker, 1, beat).size();
        EXPECT_EQ(events, expected[i]) << scores()[i].name;
    }
}

} // namespace
