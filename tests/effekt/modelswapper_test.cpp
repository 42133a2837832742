// SPDX-License-Identifier: MIT
#include "effekt/modelswapper.h"

#include "effekt/blinker.h"
#include "tests/effekt/support.h"

using effect_test::state_at;
using testing::HasSubstr;

namespace {

using Type = kore::BlinkerInterface::BlinkerType;

class ModelSwapper : public effect_test::EffectTest {
protected:
    void SetUp() override {
        WriteMesh("thing.asc", "thing");
        WriteMesh("shell.asc", "pearl");
    }

    static std::string Drawn(effect::ModelSwapper& model) {
        gl::clear_log();
        model.InternalDraw();
        return gl::calls();
    }

private:
    effect_test::WorkingFolder there{Root()};
};

// The lists of the one file loaded are 1 and 2.
constexpr char const* plain = "PushMatrix Color(1,1,1) CallList(1) Color(0,0,0) CallList(2) PopMatrix";
constexpr char const* swapped = "PushMatrix Color(0,0,0) CallList(1) Color(1,1,1) CallList(2) PopMatrix";

TEST_F(ModelSwapper, DrawsFacesAndLinesOfAFileInTheFolderData) {
    effect::ModelSwapper model("thing");
    EXPECT_STREQ(model.Name(), "ModelSwapper");
    EXPECT_EQ(gl::list_content(1), effect_test::mesh_faces);
    EXPECT_EQ(gl::list_content(2), effect_test::mesh_lines);
    EXPECT_EQ(Drawn(model), plain);
}

TEST_F(ModelSwapper, DrawsBothWhateverTheFlagsSay) {
    effect::ModelSwapper model("thing");
    model.DrawSolid(false);
    model.DrawWireframe(false);
    model.Blink(Type::Solid, 0);
    model.Blink(Type::Wireframe, 0);
    EXPECT_EQ(Drawn(model), plain);
}

TEST_F(ModelSwapper, IsNeverReachedByABlinkerButByADirectCall) {
    auto const model = std::make_shared<effect::ModelSwapper>("thing");
    effect::Blinker blinker;
    blinker.Add(model);
    blinker.AddEntry(0, 10, Type::Invert, 1);
    for (float const t : {0.f, 1.f, 2.f}) {
        model->UpdateLogic(state_at(t));
        blinker.UpdateLogic(state_at(t));
    }
    EXPECT_FALSE(model->BlinkerStarted());
    EXPECT_EQ(Drawn(*model), plain);
    model->Blink(Type::Invert, 1);
    EXPECT_EQ(Drawn(*model), swapped);
}

TEST_F(ModelSwapper, CountsItsStrobeDown) {
    effect::ModelSwapper model("thing");
    model.Blink(Type::Strobe, 1);
    for (char const* const expected : {swapped, plain, plain}) {
        model.UpdateLogic(state_at(0));
        EXPECT_EQ(Drawn(model), expected);
    }
}

TEST_F(ModelSwapper, KeepsTransitionSettingsThatChangeNothing) {
    effect::ModelSwapper model("thing");
    model.SetTransitionTime(4);
    model.SetTransitionSpeed(0);
    model.UpdateLogic(state_at(2));
    EXPECT_EQ(Drawn(model), plain);
}

TEST_F(ModelSwapper, DrawsNoListWhereItsFileLacksTheObject) {
    effect::ModelSwapper model("shell");
    EXPECT_EQ(Drawn(model), "PushMatrix Color(1,1,1) CallList(0) Color(0,0,0) CallList(0) PopMatrix");
}

using ModelSwapperDeathTest = ModelSwapper;

TEST_F(ModelSwapperDeathTest, EndsTheProgramWhenItsFileIsMissing) {
    EXPECT_DEATH(
        effect::ModelSwapper("none"),
        HasSubstr("effekt_test: effekt/modelswapper.cpp:19: effect::ModelSwapper::ModelSwapper(const string&): "
                  "Assertion `m.LoadModel(f) >= 0' failed.\n"));
}

} // namespace
