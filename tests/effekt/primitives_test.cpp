// SPDX-License-Identifier: MIT
// The small effects: cube, ball, plane and transition.

#include "effekt/blinker.h"
#include "effekt/simplecube.h"
#include "effekt/simpleplane.h"
#include "effekt/simpletransition.h"
#include "effekt/spikeball.h"
#include "tests/effekt/support.h"

using effect_test::state_at;

namespace {

using Type = kore::BlinkerInterface::BlinkerType;

template<typename Effect>
std::string drawn(Effect& effect) {
    gl::clear_log();
    effect.InternalDraw();
    return gl::calls();
}

constexpr char const* cube = "Begin(QUADS) "
                             "Vertex(-0.5,-0.5,-0.5) Vertex(-0.5,0.5,-0.5) Vertex(0.5,0.5,-0.5) Vertex(0.5,-0.5,-0.5) "
                             "Vertex(-0.5,-0.5,0.5) Vertex(-0.5,0.5,0.5) Vertex(0.5,0.5,0.5) Vertex(0.5,-0.5,0.5) "
                             "Vertex(-0.5,-0.5,-0.5) Vertex(-0.5,0.5,-0.5) Vertex(-0.5,0.5,0.5) Vertex(-0.5,-0.5,0.5) "
                             "Vertex(0.5,-0.5,-0.5) Vertex(0.5,0.5,-0.5) Vertex(0.5,0.5,0.5) Vertex(0.5,-0.5,0.5) "
                             "Vertex(-0.5,-0.5,0.5) Vertex(-0.5,-0.5,-0.5) Vertex(0.5,-0.5,-0.5) Vertex(0.5,-0.5,0.5) "
                             "Vertex(-0.5,0.5,0.5) Vertex(-0.5,0.5,-0.5) Vertex(0.5,0.5,-0.5) Vertex(0.5,0.5,0.5) "
                             "End";

class SimpleCube : public effect_test::EffectTest {};

TEST_F(SimpleCube, IsOneListOfSixQuadsDrawnInTheCurrentColour) {
    effect::SimpleCube body;
    EXPECT_STREQ(body.Name(), "SimpleCube");
    EXPECT_EQ(gl::calls(), "GenLists(1) NewList(COMPILE,1) EndList");
    EXPECT_EQ(gl::list_content(1), cube);
    EXPECT_EQ(drawn(body), "CallList(1)");
    body.UpdateLogic(state_at(9, 4, true));
    EXPECT_EQ(drawn(body), "CallList(1)");
}

class SpikeBall : public effect_test::EffectTest {
protected:
    effect::SpikeBall ball;
};

TEST_F(SpikeBall, IsACubeInItsMainColour) {
    EXPECT_STREQ(ball.Name(), "SpikeBall");
    EXPECT_EQ(gl::list_content(1), cube);
    EXPECT_EQ(drawn(ball), "Color(1,1,1) CallList(1)");
    ball.SetColor(0);
    EXPECT_EQ(drawn(ball), "Color(0,0,0) CallList(1)");
}

TEST_F(SpikeBall, KeepsItsColourThroughAStrobe) {
    ball.Blink(Type::Strobe, 3);
    for (int frame = 0; frame < 9; ++frame) {
        EXPECT_EQ(drawn(ball), "Color(1,1,1) CallList(1)");
        ball.UpdateLogic(state_at(static_cast<float>(frame)));
    }
    EXPECT_FALSE(ball.BlinkerStarted());
}

TEST_F(SpikeBall, IsInvertedAtOnceAndForGoodByADirectCall) {
    ball.Blink(Type::Invert, 1);
    EXPECT_EQ(drawn(ball), "Color(0,0,0) CallList(1)");
    for (int frame = 0; frame < 9; ++frame) ball.UpdateLogic(state_at(0));
    EXPECT_EQ(drawn(ball), "Color(0,0,0) CallList(1)");
}

TEST_F(SpikeBall, IsNeverReachedByABlinker) {
    auto const target = std::make_shared<effect::SpikeBall>();
    effect::Blinker blinker;
    blinker.Add(target);
    target->UpdateLogic(state_at(0));
    blinker.Update(Type::Invert, 1);
    EXPECT_EQ(drawn(*target), "Color(1,1,1) CallList(2)");
}

TEST_F(SpikeBall, LooksAtNoFlag) {
    ball.DrawSolid(false);
    ball.DrawWireframe(false);
    EXPECT_EQ(drawn(ball), "Color(1,1,1) CallList(1)");
}

class SimplePlane : public effect_test::EffectTest {
protected:
    effect::SimplePlane plane{6, 5};
};

TEST_F(SimplePlane, IsOneQuadAboutItsOriginInWhite) {
    EXPECT_STREQ(plane.Name(), "SimplePlane");
    EXPECT_EQ(gl::list_content(1),
              "Begin(QUADS) Vertex(-3,-2.5,0) Vertex(-3,2.5,0) Vertex(3,2.5,0) Vertex(3,-2.5,0) End");
    EXPECT_EQ(drawn(plane), "Color(1,1,1) CallList(1)");
}

TEST_F(SimplePlane, TakesRedGreenAndBlueOfAColour) {
    plane.SetColor({0.25f, 0.5f, 0.75f, 0.125f});
    plane.UpdateLogic(state_at(1));
    EXPECT_EQ(drawn(plane), "Color(0.25,0.5,0.75) CallList(1)");
}

class SimpleTransition : public effect_test::EffectTest {
protected:
    std::string AlphaAt(float t) {
        fade.UpdateLogic(state_at(t));
        drawn(fade);
        return gl::call_list()[0];
    }

    effect::SimpleTransition fade;
};

TEST_F(SimpleTransition, IsALargeSquareTwoUnitsAwayWithoutTheTransformOfItsEntity) {
    EXPECT_STREQ(fade.Name(), "SimpleTransition");
    EXPECT_EQ(gl::list_content(1), "Begin(QUADS) Vertex(-7.5,-7.5,0.1) Vertex(-7.5,7.5,0.1) Vertex(7.5,7.5,0.1) "
                                   "Vertex(7.5,-7.5,0.1) End");
    fade.SetPos({1, 2, 3});
    fade.SetColor({0.25f, 0.5f, 0.75f, 0.125f});
    gl::clear_log();
    fade.Draw();
    EXPECT_EQ(gl::calls(), "Color(0.25,0.5,0.75,0) PushMatrix Translate(0,0,-2) CallList(1) PopMatrix");
    EXPECT_EQ(gl::model_view_depth(), 1u);
}

TEST_F(SimpleTransition, FadesOutFromItsFirstUpdateToJustAboveZero) {
    fade.SetTime(4);
    EXPECT_EQ(AlphaAt(10), "Color(1,1,1,1)");
    EXPECT_EQ(AlphaAt(11), "Color(1,1,1,0.75)");
    EXPECT_EQ(AlphaAt(13.5f), "Color(1,1,1,0.125)");
    EXPECT_EQ(AlphaAt(14), "Color(1,1,1,0.125)"); // the last frame before the end stays
    EXPECT_EQ(AlphaAt(99), "Color(1,1,1,0.125)");
}

TEST_F(SimpleTransition, FadesInWithDirectionOneOnly) {
    fade.SetTime(4);
    fade.SetDirection(1);
    EXPECT_EQ(AlphaAt(0), "Color(1,1,1,0)");
    EXPECT_EQ(AlphaAt(3), "Color(1,1,1,0.75)");
    fade.SetDirection(2);
    EXPECT_EQ(AlphaAt(3), "Color(1,1,1,0.25)");
    fade.SetDirection(-1);
    EXPECT_EQ(AlphaAt(1), "Color(1,1,1,0.75)");
}

TEST_F(SimpleTransition, TakesOneSecondByDefault) {
    EXPECT_EQ(AlphaAt(0), "Color(1,1,1,1)");
    EXPECT_EQ(AlphaAt(0.75f), "Color(1,1,1,0.25)");
    EXPECT_EQ(AlphaAt(1), "Color(1,1,1,0.25)");
}

} // namespace
