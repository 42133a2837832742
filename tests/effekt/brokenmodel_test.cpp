#include "effekt/brokenmodel.h"

#include "tests/effekt/support.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

using effect_test::state_at;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

using Type = kore::BlinkerInterface::BlinkerType;
using Broken = effect::BrokenModel;

constexpr unsigned int seed = 215517;

/// What one piece does per second.
struct Piece {
    float turn[3];
    float shift[3];
};

/// The next piece of the generator's sequence, its ranges the default ones: turns first, then shifts.
Piece next_piece() {
    auto const draw = [](float range) {
        int const steps = static_cast<int>((range + range) * 100);
        return static_cast<float>(std::rand() % steps) / 100 - range;
    };
    Piece piece{};
    for (float& turn : piece.turn) turn = draw(20);
    piece.shift[0] = draw(3);
    piece.shift[1] = draw(3);
    piece.shift[2] = draw(5);
    return piece;
}

std::string number(float value) {
    char text[32];
    std::snprintf(text, sizeof text, "%g", static_cast<double>(value) + 0.0);
    return text;
}

/// The calls that put a piece in its place.
std::string moved(Piece const& p, float amount) {
    return "PushMatrix Translate(" + number(amount * p.shift[0]) + ',' + number(amount * p.shift[1]) + ',' +
           number(amount * p.shift[2]) + ") PushMatrix Rotate(" + number(amount * p.turn[0]) + ",1,0,0) Rotate(" +
           number(amount * p.turn[1]) + ",0,1,0) Rotate(" + number(amount * p.turn[2]) + ",0,0,1) ";
}

// Of the two triangles: their lists are 1 and 2, their outlines 3 and 4.
constexpr char const* faces[] = {"Color(1,1,1) CallList(1) ", "Color(1,1,1) CallList(2) "};
constexpr char const* lines[] = {"Color(0,0,0) CallList(3) ", "Color(0,0,0) CallList(4) "};

class BrokenModel : public effect_test::EffectTest {
protected:
    void SetUp() override {
        WriteMesh("thing.asc", "thing");
        models = Library();
        model = std::make_unique<Broken>(models, "thing", "");
        std::srand(seed);
        for (Piece& piece : pieces) piece = next_piece();
    }

    static std::string Drawn(Broken& of) {
        gl::clear_log();
        of.InternalDraw();
        return gl::calls();
    }
    std::string Drawn() { return Drawn(*model); }
    std::string DrawnAt(float t) {
        model->UpdateLogic(state_at(t));
        return Drawn();
    }

    static std::string Whole(bool wireframe = true) {
        std::string calls = "PushMatrix Scale(1,1,1) PushMatrix ";
        for (std::size_t i = 0; i < 2; ++i) calls += std::string(faces[i]) + (wireframe ? lines[i] : "");
        return calls + "PopMatrix PopMatrix";
    }
    std::string Apart(float amount, bool wireframe = true) const {
        std::string calls = "PushMatrix Scale(1,1,1) PushMatrix ";
        for (std::size_t i = 0; i < 2; ++i) {
            calls += moved(pieces[i], amount) + faces[i] + (wireframe ? lines[i] : "") + "PopMatrix PopMatrix ";
        }
        return calls + "PopMatrix PopMatrix";
    }

    kore::AscModel_ptr models;
    std::unique_ptr<Broken> model;
    Piece pieces[2];
};

TEST_F(BrokenModel, CompilesEveryTriangleByItself) {
    EXPECT_STREQ(model->Name(), "BrokenModel");
    EXPECT_EQ(gl::list_content(1), "Begin(TRIANGLES) Vertex(0,0,0) Vertex(1,0,0) Vertex(1,1,0) End");
    EXPECT_EQ(gl::list_content(2), "Begin(TRIANGLES) Vertex(0,0,0) Vertex(1,1,0) Vertex(0,1,0) End");
    EXPECT_EQ(gl::list_content(4), "Begin(LINES) LineWidth(1) Vertex(0,0,0) Vertex(1,1,0) Vertex(1,1,0) Vertex(0,1,0) "
                                   "Vertex(0,1,0) Vertex(0,0,0) End");
}

TEST_F(BrokenModel, IsAtFirstWholeWithItsOutlines) {
    EXPECT_EQ(Drawn(), Whole());
    EXPECT_EQ(DrawnAt(5), Whole());
}

TEST_F(BrokenModel, BreaksApartAndFliesOnForGood) {
    model->UpdateLogic(state_at(1));
    model->Blink(Type::Break, 1);
    EXPECT_EQ(Drawn(), Whole()); // until the next update
    EXPECT_EQ(DrawnAt(2), Apart(0));
    EXPECT_EQ(DrawnAt(2.5f), Apart(0.5f));
    EXPECT_EQ(DrawnAt(102), Apart(100));
    EXPECT_EQ(gl::model_view_depth(), 1u);
    EXPECT_THAT(gl::errors(), testing::IsEmpty());
}

TEST_F(BrokenModel, ScattersByTheSequenceOfItsSeed) {
    // 3 s of the formula, written out: s(f) = (r mod 200 f) / 100 - f, six numbers a triangle.
    std::srand(seed);
    std::vector<int> r;
    for (int i = 0; i < 12; ++i) r.push_back(std::rand());
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

TEST_F(BrokenModel, StartsARunAgainFromTheWholeModel) {
    model->Blink(Type::Break, 1);
    model->UpdateLogic(state_at(1));
    EXPECT_EQ(DrawnAt(3), Apart(2));
    model->Blink(Type::Break, 0); // the value does not matter
    EXPECT_EQ(Drawn(), Whole());  // asked for, not yet running
    EXPECT_EQ(DrawnAt(4), Apart(0));
    EXPECT_EQ(DrawnAt(5), Apart(1));
}

TEST_F(BrokenModel, ShowsItsOutlinesAgainWhenItBreaks) {
    model->Blink(Type::Wireframe, 0);
    EXPECT_EQ(Drawn(), Whole(false));
    EXPECT_EQ(DrawnAt(0), Whole(false));
    model->Blink(Type::Break, 1);
    EXPECT_EQ(DrawnAt(1), Apart(0));
    model->Blink(Type::Wireframe, 0); // and can lose them during the run
    EXPECT_EQ(DrawnAt(2), Apart(1, false));
}

TEST_F(BrokenModel, WaitsScatteredAndClosesWithTheDirectionOne) {
    model->SetDirection(1);
    model->SetTransitionTime(2);
    EXPECT_EQ(DrawnAt(0), Apart(2));
    EXPECT_EQ(DrawnAt(7), Apart(2));
    model->Blink(Type::Break, 1);
    EXPECT_EQ(DrawnAt(10), Apart(2));
    EXPECT_EQ(DrawnAt(10.5f), Apart(1.5f));
    EXPECT_EQ(DrawnAt(11.75f), Apart(0.25f));
    EXPECT_EQ(DrawnAt(12), Whole(false));
    EXPECT_EQ(DrawnAt(20), Whole(false));
    // Whole again, it is ready to break apart.
    model->Blink(Type::Break, 1);
    EXPECT_EQ(DrawnAt(21), Apart(0));
    EXPECT_EQ(DrawnAt(22), Apart(1));
}

TEST_F(BrokenModel, WaitsWholeWithTheDirectionNoughtAndJumpsApartToClose) {
    model->SetDirection(0);
    model->SetTransitionTime(2);
    EXPECT_EQ(DrawnAt(0), Whole());
    model->Blink(Type::Break, 1);
    EXPECT_EQ(DrawnAt(10), Apart(2));
    EXPECT_EQ(DrawnAt(11), Apart(1));
    EXPECT_EQ(DrawnAt(12.5f), Whole(false));
    model->Blink(Type::Break, 1);
    EXPECT_EQ(DrawnAt(21), Apart(0));
}

TEST_F(BrokenModel, ShowsItsOutlinesAgainWhileItWaits) {
    model->SetDirection(1);
    model->SetTransitionTime(2);
    model->Blink(Type::Wireframe, 0);
    EXPECT_EQ(DrawnAt(0), Apart(2));
    model->Blink(Type::Break, 1);
    model->Blink(Type::Wireframe, 0);
    EXPECT_EQ(DrawnAt(1), Apart(2, false)); // not once it closes
}

TEST_F(BrokenModel, StartsAClosingRunAgain) {
    model->SetDirection(1);
    model->SetTransitionTime(2);
    model->Blink(Type::Break, 1);
    model->UpdateLogic(state_at(0));
    EXPECT_EQ(DrawnAt(1), Apart(1));
    model->Blink(Type::Break, 1);
    EXPECT_EQ(DrawnAt(1.5f), Apart(2));
    EXPECT_EQ(DrawnAt(3), Apart(0.5f));
}

TEST_F(BrokenModel, ClosesAtOnceWithoutATransitionTime) {
    for (int const direction : {0, 1, 7}) {
        SCOPED_TRACE(testing::Message() << "direction " << direction);
        model->SetDirection(direction);
        model->UpdateLogic(state_at(0));
        EXPECT_EQ(Drawn(), direction == 0 ? Whole() : Apart(-1));
        model->Blink(Type::Break, 1);
        EXPECT_EQ(DrawnAt(1), Whole(false));
        model->Blink(Type::Wireframe, 1);
    }
}

TEST_F(BrokenModel, TakesEveryDirectionBelowNoughtForBreaking) {
    model->SetDirection(-5);
    model->SetTransitionTime(2);
    EXPECT_EQ(DrawnAt(0), Whole());
    model->Blink(Type::Break, 1);
    EXPECT_EQ(DrawnAt(1), Apart(0));
    EXPECT_EQ(DrawnAt(4), Apart(3));
}

TEST_F(BrokenModel, KeepsItsOutlinesWhenAsked) {
    model->KeepWireframe(true);
    model->Blink(Type::Wireframe, 0);
    EXPECT_EQ(Drawn(), Whole());
    model->SetDirection(1);
    model->SetTransitionTime(1);
    model->Blink(Type::Break, 1);
    model->UpdateLogic(state_at(0));
    EXPECT_EQ(DrawnAt(2), Whole());
    model->KeepWireframe(false);
    EXPECT_EQ(Drawn(), Whole(false));
}

TEST_F(BrokenModel, LeavesOutItsFacesWhenAsked) {
    model->DrawSolid(false);
    EXPECT_EQ(Drawn(),
              "PushMatrix Scale(1,1,1) PushMatrix " + std::string(lines[0]) + lines[1] + "PopMatrix PopMatrix");
    model->DrawWireframe(false);
    EXPECT_EQ(Drawn(), "PushMatrix Scale(1,1,1) PushMatrix PopMatrix PopMatrix");
}

TEST_F(BrokenModel, ScalesTheWayAsWellAsThePieces) {
    model->SetScale({2, 3, 4});
    model->Blink(Type::Break, 1);
    model->UpdateLogic(state_at(0));
    model->UpdateLogic(state_at(1));
    Drawn();
    EXPECT_EQ(gl::call_list()[1], "Scale(2,3,4)");
    auto const corner = gl::transform(gl::draws()[0].model_view, 0, 0, 0);
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_NEAR(corner[i], pieces[0].shift[i] * static_cast<float>(i + 2), 1e-5);
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
    EXPECT_EQ(Drawn(other), Whole()); // the lists of the first of the name
    // A file that has gone is not missed: the library holds the model.
    std::filesystem::remove(Root() / "data/thing.asc");
    Broken third(models, "thing", "");
    EXPECT_EQ(Drawn(third), Whole());
}

TEST_F(BrokenModel, LoadsAFileOfAnotherNameWhenGivenOne) {
    WriteMesh("box.asc", "cube");
    Broken other(models, "cube", "box.asc");
    EXPECT_THAT(Drawn(other), HasSubstr("CallList(5)"));
}

/// Notes which components it is asked for.
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
    pieces[0] = {
        {1, 2, 3},
        {4, 5, 6}
    };
    pieces[1] = {
        {7,  8,  9 },
        {10, 11, 12}
    };
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

/// A scene's own ranges, drawn as by default.
class NarrowSet final : public Broken::DefaultSet {
public:
    float set(int index) override { return index < 3 ? 0 : s(1); }
};

/// The default ranges, drawn in another way.
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
        EXPECT_NEAR(least, -f, f / 50) << f;
        EXPECT_NEAR(most, f, f / 50 + 0.0101f) << f;
    }
}

using BrokenModelDeathTest = BrokenModel;

TEST_F(BrokenModelDeathTest, EndsTheProgramWhenItsModelCannotBeHad) {
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
