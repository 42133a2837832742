// SPDX-License-Identifier: MIT
#include "tests/effekt/brokenmodel.h"

using broken::BrokenModel;
using broken::lines;
using broken::Type;
using effect_test::state_at;

namespace {

TEST_F(BrokenModel, CompilesEveryTriangleByItself) {
    EXPECT_STREQ(model->Name(), "BrokenModel");
    EXPECT_EQ(model->ModelName(), "thing");
    EXPECT_EQ(gl::list_content(1), "Begin(TRIANGLES) Vertex(0,0,0) Vertex(1,0,0) Vertex(1,1,0) End");
    EXPECT_EQ(gl::list_content(2), "Begin(TRIANGLES) Vertex(0,0,0) Vertex(1,1,0) Vertex(0,1,0) End");
    EXPECT_EQ(gl::list_content(4), "Begin(LINES) LineWidth(1) Vertex(0,0,0) Vertex(1,1,0) Vertex(1,1,0) Vertex(0,1,0) "
                                   "Vertex(0,1,0) Vertex(0,0,0) End");
}

TEST_F(BrokenModel, StartsWholeWithItsOutlines) {
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

TEST_F(BrokenModel, WaitsScatteredAndClosesWithDirectionOne) {
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

TEST_F(BrokenModel, WaitsWholeWithDirectionZeroAndJumpsApartToClose) {
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

TEST_F(BrokenModel, BreaksForEveryDirectionBelowZero) {
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

} // namespace
