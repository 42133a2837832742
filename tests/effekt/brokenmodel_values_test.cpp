// SPDX-License-Identifier: MIT
// Where the pieces' values come from, and what ends the program.

#include "tests/effekt/brokenmodel.h"

#include <algorithm>
#include <cmath>

using broken::Broken;
using broken::BrokenModel;
using broken::next_piece;
using broken::number;
using broken::Piece;
using broken::seed;
using broken::Type;
using effect_test::state_at;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

TEST_F(BrokenModel, ScattersByTheSequenceOfItsSeed) {
    // 3 s of the formula, written out: s(f) = (r mod 200 f) / 100 - f, six numbers a triangle.
    std::srand(seed);
    int r[12];
    for (int& drawn : r) drawn = std::rand();
    model->Blink(Type::Break, 1);
    model->UpdateLogic(state_at(0));
    model->UpdateLogic(state_at(3));
    Drawn();
    for (std::size_t piece = 0; piece < 2; ++piece) {
        SCOPED_TRACE(testing::Message() << "piece " << piece);
        int const* const own = &r[piece * 6];
        float const steps[] = {4000, 4000, 4000, 600, 600, 1000};
        float value[6];
        for (int i = 0; i < 6; ++i) {
            value[i] = static_cast<float>(own[i] % static_cast<int>(steps[i])) / 100 - steps[i] / 200;
        }
        std::size_t const at = 3 + piece * 12;
        EXPECT_EQ(gl::call_list()[at + 1],
                  "Translate(" + number(3 * value[3]) + ',' + number(3 * value[4]) + ',' + number(3 * value[5]) + ')');
        EXPECT_EQ(gl::call_list()[at + 3], "Rotate(" + number(3 * value[0]) + ",1,0,0)");
        EXPECT_EQ(gl::call_list()[at + 4], "Rotate(" + number(3 * value[1]) + ",0,1,0)");
        EXPECT_EQ(gl::call_list()[at + 5], "Rotate(" + number(3 * value[2]) + ",0,0,1)");
    }
}

TEST_F(BrokenModel, FallsApartLikeEveryOtherOfItsMesh) {
    std::rand();
    Broken other(models, "thing", "");
    for (Broken* const one : {model.get(), &other}) {
        one->Blink(Type::Break, 1);
        one->UpdateLogic(state_at(0));
        one->UpdateLogic(state_at(1));
        EXPECT_EQ(Drawn(*one), Apart(1));
    }
}

TEST_F(BrokenModel, ReadsItsFileEveryTime) {
    std::size_t const lists = gl::list_count();
    Broken other(models, "thing", "");
    EXPECT_EQ(gl::list_count(), lists + 4);
    EXPECT_EQ(Drawn(other), Whole()); // the lists of the first model of that name
    // The file is gone and not needed: the library holds the model.
    std::filesystem::remove(Root() / "data/thing.asc");
    Broken third(models, "thing", "");
    EXPECT_EQ(Drawn(third), Whole());
}

TEST_F(BrokenModel, LoadsAFileOfAnotherNameWhenGivenOne) {
    WriteMesh("box.asc", "cube");
    Broken other(models, "cube", "box.asc");
    EXPECT_THAT(Drawn(other), HasSubstr("CallList(5)"));
}

/// Records which components it is asked for.
class CountingSet final : public Broken::ValueSetInterface {
public:
    float set(int index) override {
        asked.push_back(index);
        return static_cast<float>(asked.size());
    }
    float s(float) override { return 0; }
    std::vector<int> asked;
};

TEST_F(BrokenModel, AsksASetForSixComponentsOfEveryPieceInOrder) {
    CountingSet set;
    model->ResetValues(&set);
    EXPECT_THAT(set.asked, ElementsAre(0, 1, 2, 3, 4, 5, 0, 1, 2, 3, 4, 5));
    pieces[0] = {{1, 2, 3}, {4, 5, 6}};
    pieces[1] = {{7, 8, 9}, {10, 11, 12}};
    model->Blink(Type::Break, 1);
    model->UpdateLogic(state_at(0));
    EXPECT_EQ(DrawnAt(2), Apart(2));
}

TEST_F(BrokenModel, GoesOnWithTheSequenceWhenItsValuesAreDrawnAgain) {
    Broken fresh(models, "thing", ""); // 12 numbers from the seed on
    Broken::DefaultSet set;
    fresh.ResetValues(&set);
    std::srand(seed);
    for (int i = 0; i < 12; ++i) std::rand();
    for (Piece& piece : pieces) piece = next_piece();
    fresh.Blink(Type::Break, 1);
    fresh.UpdateLogic(state_at(0));
    fresh.UpdateLogic(state_at(1));
    EXPECT_EQ(Drawn(fresh), Apart(1));
}

/// A scene's own ranges, drawn from as by default.
class NarrowSet final : public Broken::DefaultSet {
public:
    float set(int index) override { return index < 3 ? 0 : s(1); }
};

/// The default ranges, drawn from in another way.
class RangeSet final : public Broken::DefaultSet {
public:
    float s(float f) override { return f; }
};

TEST(BrokenModelSets, MayOverrideTheRangesAndKeepTheNumbers) {
    std::srand(1);
    float const expected = static_cast<float>(std::rand() % 200) / 100 - 1;
    std::srand(1);
    NarrowSet set;
    EXPECT_EQ(set.set(0), 0);
    EXPECT_EQ(set.set(5), expected);
}

TEST(BrokenModelSets, MayOverrideTheNumbersAndKeepTheRanges) {
    RangeSet set;
    float const ranges[] = {20, 20, 20, 3, 3, 5, 1, 1};
    for (int i = 0; i < 8; ++i) EXPECT_EQ(set.set(i), ranges[i]) << i;
    EXPECT_EQ(set.set(-1), 1);
}

TEST(BrokenModelSets, DrawInHalfOpenRangesInStepsOfAHundredth) {
    std::srand(seed);
    Broken::DefaultSet set;
    constexpr float two_steps = 0.0201f;
    for (float const f : {20.f, 5.f, 3.f, 0.5f, 0.01f}) {
        float least = f;
        float most = -f;
        for (int i = 0; i < 20000; ++i) {
            float const value = set.s(f);
            least = std::min(least, value);
            most = std::max(most, value);
            float const steps = (value + f) * 100;
            ASSERT_NEAR(steps, std::round(steps), 1e-3);
        }
        EXPECT_GE(least, -f) << f;
        EXPECT_LT(most, f) << f;
        EXPECT_NEAR(least, -f, two_steps) << f;
        EXPECT_NEAR(most, f - 0.01f, two_steps) << f;
    }
}

using BrokenModelDeathTest = BrokenModel;

TEST_F(BrokenModelDeathTest, EndsTheProgramWithoutItsModel) {
    WriteMesh("other.asc", "other");
    for (char const* const file : {"", "other.asc", "missing.asc"}) {
        SCOPED_TRACE(file);
        EXPECT_DEATH(Broken(models, "none", file),
                     HasSubstr("effekt_test: effekt/brokenmodel.cpp:21: effect::BrokenModel::BrokenModel("
                               "kore::AscModel_ptr, const string&, const string&): Assertion `myModel.get()' "
                               "failed.\n"));
    }
}

TEST_F(BrokenModelDeathTest, EndsTheProgramWithoutASetOfValues) {
    EXPECT_DEATH(model->ResetValues(nullptr),
                 HasSubstr("effekt_test: effekt/brokenmodel.cpp:190: void effect::BrokenModel::ResetValues("
                           "effect::BrokenModel::ValueSetInterface*): Assertion `set' failed.\n"));
}

TEST_F(BrokenModelDeathTest, EndsTheProgramForARangeThatHoldsNoNumber) {
    Broken::DefaultSet set;
    EXPECT_DEATH(set.s(0.0049f), HasSubstr("Assertion `n != 0' failed."));
}

} // namespace
