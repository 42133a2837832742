// SPDX-License-Identifier: MIT
#include "effekt/blinker.h"

#include "tests/effekt/support.h"

#include <cmath>
#include <tuple>

using effect_test::state_at;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Type = kore::BlinkerInterface::BlinkerType;

/// Records the events that reach it, in a list that targets may share.
class Target final : public kore::BlinkerInterface {
public:
    Target(std::vector<std::string>& diary_, std::string name_, bool started_ = true)
        : started(started_), diary(diary_), name(std::move(name_)) {}

    void Blink(BlinkerType const& type, int const& value) override {
        diary.push_back(name + ' ' + std::to_string(type) + '=' + std::to_string(value));
    }
    void DrawWireframe(bool) override {}
    void DrawSolid(bool) override {}
    void drawNegativeColor() override {}
    void drawColor() override {}
    void SetColor(int) override {}
    bool BlinkerStarted() override { return started; }

    bool started;

private:
    std::vector<std::string>& diary;
    std::string name;
};

class Blinker : public effect_test::EffectTest {
protected:
    std::shared_ptr<Target> Add(std::string const& name, bool started = true) {
        auto target = std::make_shared<Target>(diary, name, started);
        blinker.Add(target);
        return target;
    }

    /// How many events a frame at t brings.
    std::size_t EventsAt(float t) {
        std::size_t const before = diary.size();
        blinker.UpdateLogic(state_at(t));
        return diary.size() - before;
    }

    effect::Blinker blinker;
    std::vector<std::string> diary;
};

TEST_F(Blinker, FiresFromTheStartOfAWindowUpToButNotIncludingItsEnd) {
    struct Row {
        char const* what;
        float start;
        float length;
        float t;
        bool fires;
    };
    float const inf = INFINITY;
    // clang-format off
    Row const rows[] = {
        {"before",                2,  1,    1.5f,                                   false},
        {"just before the start", 2,  1,    std::nextafter(2.f, 0.f),               false},
        {"at the start",          2,  1,    2,                                      true},
        {"inside",                2,  1,    2.5f,                                   true},
        {"just before the end",   2,  1,    std::nextafter(3.f, 0.f),               true},
        {"at the end",            2,  1,    3,                                      false},
        {"after",                 2,  1,    4,                                      false},
        {"no length",             2,  0,    2,                                      false},
        {"no length, at zero",    0,  0,    0,                                      false},
        {"negative length",       2,  -1,   2,                                      false},
        {"just before zero",      0,  1,    -1e-6f,                                 false},
        {"negative start",        -1, 1.5f, 0,                                      true},
        {"without end",           2,  inf,  1e9f,                                   true},
    };
    // clang-format on
    for (Row const& row : rows) {
        SCOPED_TRACE(row.what);
        effect::Blinker one;
        std::vector<std::string> events;
        one.Add(std::make_shared<Target>(events, "a"));
        one.AddEntry(row.start, row.length, Type::Strobe, 4);
        one.UpdateLogic(state_at(row.t));
        EXPECT_EQ(events.size(), row.fires ? 1u : 0u);
    }
}

TEST_F(Blinker, FiresEachEntryOnceInTheLifeOfTheProgram) {
    Add("a");
    blinker.AddEntry(1, 1, Type::Strobe, 4);
    EXPECT_EQ(EventsAt(1), 1u);
    EXPECT_EQ(EventsAt(1.5f), 0u);
    EXPECT_EQ(EventsAt(0), 0u);
    EXPECT_EQ(EventsAt(1), 0u); // the scene played again
}

TEST_F(Blinker, NeverFiresAnEntryWhoseWindowPassesBetweenTwoFrames) {
    Add("a");
    blinker.AddEntry(1, 0.25f, Type::Strobe, 4);
    EXPECT_EQ(EventsAt(0.9f), 0u);
    EXPECT_EQ(EventsAt(1.3f), 0u);
    EXPECT_EQ(EventsAt(2), 0u);
}

TEST_F(Blinker, TellsWhatIsScheduledAndWhatHasFired) {
    blinker.AddEntry(3, 5, Type::Invert, 1);
    blinker.AddEntry(1, 9, Type::Strobe, 12);
    blinker.UpdateLogic(state_at(2));
    ASSERT_EQ(blinker.Entries().size(), 2u);
    effect::Blinker::Entry const& first = blinker.Entries()[0];
    effect::Blinker::Entry const& second = blinker.Entries()[1];
    EXPECT_EQ(std::tie(first.start, first.length, first.type, first.value, first.done),
              std::make_tuple(3.0f, 5.0f, Type::Invert, 1, false));
    EXPECT_EQ(std::tie(second.start, second.length, second.type, second.value, second.done),
              std::make_tuple(1.0f, 9.0f, Type::Strobe, 12, true));
}

TEST_F(Blinker, FiresSeveralEntriesOfAFrameInTheirOrderAndNotInThatOfTheirTimes) {
    Add("a");
    blinker.AddEntry(3, 5, Type::Invert, 1);
    blinker.AddEntry(1, 9, Type::Strobe, 12);
    blinker.AddEntry(2, 9, Type::Flip, 0);
    blinker.UpdateLogic(state_at(4));
    EXPECT_THAT(diary, ElementsAre("a 0=1", "a 1=12", "a 6=0"));
}

TEST_F(Blinker, ServesItsTargetsInTheirOrder) {
    Add("b");
    Add("a");
    blinker.AddEntry(0, 1, Type::Solid, 0);
    blinker.AddEntry(0, 1, Type::Wireframe, -7);
    blinker.UpdateLogic(state_at(0));
    EXPECT_THAT(diary, ElementsAre("b 7=0", "a 7=0", "b 3=-7", "a 3=-7"));
}

TEST_F(Blinker, SendsEachEventTwiceToATargetThatWasAddedTwice) {
    blinker.Add(Add("a"));
    blinker.AddEntry(0, 1, Type::Break, 1);
    blinker.UpdateLogic(state_at(0));
    EXPECT_THAT(diary, ElementsAre("a 4=1", "a 4=1"));
}

TEST_F(Blinker, LosesAnEventForATargetThatHasNotStartedAndKeepsItForTheOthers) {
    auto const late = Add("late", false);
    Add("ready");
    blinker.AddEntry(0, 10, Type::Invert, 1);
    blinker.AddEntry(5, 10, Type::Invert, 0);
    blinker.UpdateLogic(state_at(0));
    EXPECT_THAT(diary, ElementsAre("ready 0=1"));
    late->started = true;
    blinker.UpdateLogic(state_at(1)); // the first event is over, although its window is open
    EXPECT_THAT(diary, ElementsAre("ready 0=1"));
    blinker.UpdateLogic(state_at(5));
    EXPECT_THAT(diary, ElementsAre("ready 0=1", "late 0=0", "ready 0=0"));
}

TEST_F(Blinker, SpendsAnEntryEvenWhenItReachesNoTarget) {
    blinker.AddEntry(0, 10, Type::Invert, 1);
    blinker.UpdateLogic(state_at(0));
    Add("a");
    EXPECT_EQ(EventsAt(1), 0u);
}

TEST_F(Blinker, SendsAnEventAtOnceWhenAsked) {
    Add("a");
    Add("idle", false);
    blinker.Update(Type::Strobe, 9000);
    EXPECT_THAT(diary, ElementsAre("a 1=9000"));
}

TEST_F(Blinker, DoesNotLookAtBeats) {
    Add("a");
    blinker.AddEntry(1, 1, Type::Strobe, 4);
    blinker.UpdateLogic(state_at(0, 1, true));
    EXPECT_THAT(diary, IsEmpty());
    blinker.UpdateLogic(state_at(1, -1));
    EXPECT_EQ(diary.size(), 1u);
}

TEST_F(Blinker, KeepsAFrequencyThatChangesNothing) {
    Add("a");
    blinker.AddEntry(1, 1, Type::Strobe, 4);
    blinker.SetFreq(100);
    EXPECT_EQ(EventsAt(0), 0u);
    EXPECT_EQ(EventsAt(1), 1u);
    EXPECT_EQ(EventsAt(1), 0u);
}

TEST_F(Blinker, DrawsNothingAndTouchesNoMatrix) {
    EXPECT_STREQ(blinker.Name(), "Blinker");
    blinker.SetPos({1, 2, 3});
    blinker.AddEntry(0, 1, Type::Strobe, 4);
    blinker.UpdateLogic(state_at(0));
    blinker.Draw();
    blinker.InternalDraw();
    EXPECT_EQ(gl::call_count(), 0u);
}

} // namespace
