// SPDX-License-Identifier: MIT
#include "effekt/gyrofuck.h"

#include "tests/effekt/support.h"

#include <GL/gl.h>

using effect_test::state_at;
using testing::HasSubstr;

namespace {

using Type = kore::BlinkerInterface::BlinkerType;

class GyroFuck : public effect_test::EffectTest {
protected:
    void SetUp() override {
        WriteMesh("donut2.asc", "donut2");
        kore::AscModel_ptr const models = Library();
        gyro = std::make_unique<effect::GyroFuck>(models);
        NameLists(*models, "donut2");
    }

    /// Draws inside one more matrix, as its entity does.
    std::string Drawn() {
        glPushMatrix();
        gl::clear_log();
        gyro->InternalDraw();
        return gl::calls();
    }

    static std::string Rings(float time, float a, float b) {
        char text[1024];
        char const* const ring = "Color(1,1,1) CallList(donut2) Color(0,0,0) CallList(donut2-lines) PopMatrix "
                                 "PopMatrix";
        double const angle = static_cast<double>(130 * time);
        auto const [p, q] = std::pair(static_cast<double>(a), static_cast<double>(b));
        std::snprintf(text, sizeof text,
                      "PushMatrix Rotate(%g,1,0.5,1) PushMatrix Scale(%g,%g,%g) %s "
                      "PushMatrix Rotate(%g,-0.5,1,0.5) PushMatrix Scale(%g,%g,%g) %s "
                      "PushMatrix Rotate(%g,1,-1,0.5) Scale(80,80,80) %s",
                      angle, p, p, p, ring, angle, q, q, q, ring, angle, ring);
        return text;
    }

    std::unique_ptr<effect::GyroFuck> gyro;
};

TEST_F(GyroFuck, DrawsThreeRingsAboutTiltedAxes) {
    EXPECT_STREQ(gyro->Name(), "GyroFuck");
    EXPECT_EQ(Drawn(), Rings(0, 50, 50));
}

TEST_F(GyroFuck, PopsOneMatrixMoreThanItPushes) {
    glTranslatef(1, 0, 0);
    glPushMatrix();
    glTranslatef(10, 0, 0);
    gl::clear_log();
    gyro->InternalDraw();
    EXPECT_EQ(gl::model_view_depth(), 1u);
    EXPECT_EQ(gl::model_view()[12], 1);
    EXPECT_THAT(gl::errors(), testing::IsEmpty());
}

TEST_F(GyroFuck, TakesTheMatrixThatItsEntityHasPushed) {
    glTranslatef(7, 0, 0);
    glPushMatrix(); // the scene's
    gyro->SetPos({100, 0, 0});
    gyro->Draw();
    EXPECT_EQ(gl::model_view_depth(), 1u);
    EXPECT_EQ(gl::model_view()[12], 7);
    EXPECT_THAT(gl::errors(), testing::IsEmpty());
}

struct Frame {
    char const* what;
    float t;
    int beat;
    bool new_beat;
    float a;
    float b;
};

TEST_F(GyroFuck, BreathesInCounterPhaseAndSwapsOnEveryEvenBeat) {
    // clang-format off
    Frame const frames[] = {
        {"before any beat",                0,      -1, false, 10,     40},
        {"breathing all the same",         0.25f,  -1, false, 17.5f,  32.5f},
        {"an odd beat changes nothing",    0.5f,   1,  true,  25,     25},
        {"an even beat swaps",             1,      2,  true,  40,     10},
        {"breathing",                      1.25f,  2,  false, 32.5f,  17.5f},
        {"an odd beat changes nothing",    1.5f,   3,  true,  25,     25},
        {"the end of a breath",            2,      3,  false, 10,     40},
        {"and beyond it",                  2.5f,   3,  false, -5,     55},
        {"the next even beat swaps back",  3,      4,  true,  10,     40},
        {"breathing",                      3.125f, 4,  false, 13.75f, 36.25f},
        {"zero is an even beat",           4,      0,  true,  40,     10},
        {"a beat counts on its new frame", 4.5f,   0,  false, 25,     25},
    };
    // clang-format on
    for (Frame const& frame : frames) {
        SCOPED_TRACE(testing::Message() << frame.what << ", at " << frame.t << " s");
        gyro->UpdateLogic(state_at(frame.t, frame.beat, frame.new_beat));
        EXPECT_EQ(Drawn(), Rings(frame.t, frame.a, frame.b));
    }
}

TEST_F(GyroFuck, IsExactlyTenAndFortyOnAnEvenBeat) {
    // At the show's tempo beats do not fall on round numbers.
    for (int beat = 0; beat < 32; beat += 2) {
        float const t = static_cast<float>(beat) * (60.0f / 132.0f);
        gyro->UpdateLogic(state_at(t, beat, true));
        bool const first = beat % 4 == 0;
        EXPECT_EQ(Drawn(), Rings(t, first ? 40 : 10, first ? 10 : 40)) << "beat " << beat;
    }
}

TEST_F(GyroFuck, StrobesFacesAgainstLines) {
    gyro->Blink(Type::Strobe, 1);
    gyro->UpdateLogic(state_at(0));
    EXPECT_THAT(Drawn(), HasSubstr("Color(0,0,0) CallList(donut2) Color(1,1,1) CallList(donut2-lines)"));
    gyro->UpdateLogic(state_at(0));
    EXPECT_EQ(Drawn(), Rings(0, 10, 40));
}

TEST_F(GyroFuck, DrawsBothWhateverTheFlagsSay) {
    gyro->DrawSolid(false);
    gyro->DrawWireframe(false);
    gyro->Blink(Type::Wireframe, 0);
    gyro->Blink(Type::Solid, 0);
    EXPECT_EQ(Drawn(), Rings(0, 50, 50));
}

TEST_F(GyroFuck, DrawsNoListWithoutItsModel) {
    std::filesystem::remove(Root() / "data/donut2.asc");
    testing::internal::CaptureStdout();
    effect::GyroFuck bare(Library());
    EXPECT_THAT(testing::internal::GetCapturedStdout(), testing::EndsWith("data/donut2.asc\n"));
    gl::clear_log();
    bare.InternalDraw();
    ASSERT_EQ(gl::draws().size(), 6u);
    for (gl::Draw const& draw : gl::draws()) EXPECT_EQ(draw.list, 0u);
}

} // namespace
