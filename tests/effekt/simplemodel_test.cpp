// SPDX-License-Identifier: MIT
#include "effekt/simplemodel.h"

#include "tests/effekt/support.h"

#include <fstream>

using effect_test::state_at;
using testing::HasSubstr;

namespace {

using Type = kore::BlinkerInterface::BlinkerType;

class SimpleModel : public effect_test::EffectTest {
protected:
    void SetUp() override { WriteMesh("thing.asc", "thing"); }

    /// The calls of its InternalDraw.
    std::string Drawn(effect::SimpleModel& model) {
        gl::clear_log();
        model.InternalDraw();
        return gl::calls();
    }

    kore::AscModel_ptr models = Library();
};

TEST_F(SimpleModel, DrawsWhiteFacesAndBlackLinesOverThem) {
    effect::SimpleModel model(models, "thing", "");
    NameLists(*models, "thing");
    EXPECT_STREQ(model.Name(), "SimpleModel");
    EXPECT_EQ(Drawn(model), "PushMatrix Scale(1,1,1) Color(1,1,1) CallList(thing) Color(0,0,0) CallList(thing-lines) "
                            "PopMatrix");
}

TEST_F(SimpleModel, TellsTheListOfItsFaces) {
    effect::SimpleModel const model(models, "thing", "");
    EXPECT_EQ(models->NameOf(model.FaceList()), "thing");
}

TEST_F(SimpleModel, CompilesTheFacesAndTheVisibleEdgesOfItsFile) {
    effect::SimpleModel model(models, "thing", "");
    model.InternalDraw();
    ASSERT_EQ(gl::draws().size(), 2u);
    EXPECT_EQ(gl::list_content(gl::draws()[0].list), effect_test::mesh_faces);
    EXPECT_EQ(gl::list_content(gl::draws()[1].list), effect_test::mesh_lines);
}

TEST_F(SimpleModel, ScalesInsideTheTransformOfItsEntity) {
    effect::SimpleModel model(models, "thing", "");
    NameLists(*models, "thing");
    model.SetScale({2, 3, 4});
    model.SetPos({10, 20, 30});
    model.SetRot({0, 0, 90});
    gl::clear_log();
    model.Draw();
    EXPECT_EQ(gl::calls(), "PushMatrix Translate(10,20,30) PushMatrix Rotate(0,1,0,0) Rotate(0,0,1,0) "
                           "Rotate(90,0,0,1) PushMatrix Scale(2,3,4) Color(1,1,1) CallList(thing) Color(0,0,0) "
                           "CallList(thing-lines) PopMatrix PopMatrix PopMatrix");
    // Scaled to (2, 0, 0), turned to (0, 2, 0), moved.
    auto const corner = gl::transform(gl::draws()[0].model_view, 1, 0, 0);
    EXPECT_NEAR(corner[0], 10, 1e-5);
    EXPECT_NEAR(corner[1], 22, 1e-5);
    EXPECT_NEAR(corner[2], 30, 1e-5);
}

TEST_F(SimpleModel, DrawsFacesAndLinesByTheirFlags) {
    constexpr char const* faces = "Color(1,1,1) CallList(thing) ";
    constexpr char const* lines = "Color(0,0,0) CallList(thing-lines) ";
    struct Row {
        int solid;
        int wireframe;
        std::string between;
    };
    Row const rows[] = {
        {1, 1, std::string(faces) + lines},
        {1, 0, faces},
        {0, 1, lines},
        {0, 0, ""},
        {2, 1, lines}, // any value but 1 switches off
        {1, 2, faces},
    };
    effect::SimpleModel model(models, "thing", "");
    NameLists(*models, "thing");
    for (Row const& row : rows) {
        SCOPED_TRACE(testing::Message() << "solid " << row.solid << ", wireframe " << row.wireframe);
        model.Blink(Type::Solid, row.solid);
        model.Blink(Type::Wireframe, row.wireframe);
        EXPECT_EQ(Drawn(model), "PushMatrix Scale(1,1,1) " + row.between + "PopMatrix");
    }
    model.DrawSolid(true);
    model.DrawWireframe(false);
    EXPECT_EQ(Drawn(model), "PushMatrix Scale(1,1,1) " + std::string(faces) + "PopMatrix");
}

TEST_F(SimpleModel, StaysATargetWhileNothingIsDrawn) {
    effect::SimpleModel model(models, "thing", "");
    NameLists(*models, "thing");
    model.DrawSolid(false);
    model.DrawWireframe(false);
    model.UpdateLogic(state_at(0));
    EXPECT_TRUE(model.BlinkerStarted());
    model.Blink(Type::Solid, 1);
    model.Blink(Type::Invert, 1);
    EXPECT_EQ(Drawn(model), "PushMatrix Scale(1,1,1) Color(0,0,0) CallList(thing) PopMatrix");
}

TEST_F(SimpleModel, DoesNotMoveByItself) {
    effect::SimpleModel model(models, "thing", "");
    std::string const before = Drawn(model);
    for (float const t : {0.f, 1.f, 100.f}) {
        model.UpdateLogic(state_at(t, 4, true));
        EXPECT_EQ(Drawn(model), before);
    }
}

TEST_F(SimpleModel, KeepsTransitionSettingsThatChangeNothing) {
    effect::SimpleModel model(models, "thing", "");
    std::string const before = Drawn(model);
    model.SetTransitionTime(3);
    model.SetTransitionSpeed(0);
    model.UpdateLogic(state_at(1));
    EXPECT_EQ(Drawn(model), before);
}

TEST_F(SimpleModel, LoadsItsFileOnceForTwoOfAName) {
    effect::SimpleModel first(models, "thing", "");
    std::filesystem::remove(Root() / "data/thing.asc");
    effect::SimpleModel second(models, "thing", "gone.asc");
    EXPECT_EQ(models->size(), 1u);
    EXPECT_EQ(Drawn(first), Drawn(second));
}

TEST_F(SimpleModel, LoadsAFileOfAnotherNameWhenGivenOne) {
    WriteMesh("box.asc", "thing");
    std::filesystem::remove(Root() / "data/thing.asc");
    effect::SimpleModel model(models, "thing", "box.asc");
    NameLists(*models, "thing");
    EXPECT_THAT(Drawn(model), HasSubstr("CallList(thing)"));
}

using SimpleModelDeathTest = SimpleModel;

TEST_F(SimpleModelDeathTest, EndsTheProgramWithoutItsModel) {
    WriteMesh("other.asc", "other");
    ExpectDeathWithoutModel<effect::SimpleModel>(models, "effekt/simplemodel.cpp", "effect::SimpleModel::SimpleModel");
}

} // namespace
