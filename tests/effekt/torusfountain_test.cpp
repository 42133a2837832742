// SPDX-License-Identifier: MIT
#include "effekt/torusfountain.h"

#include "tests/effekt/support.h"

#include <algorithm>

using effect_test::state_at;
using testing::HasSubstr;

namespace {

using Type = kore::BlinkerInterface::BlinkerType;
using Fountain = effect::TorusFountain;

constexpr std::size_t tori = 6;
constexpr std::size_t calls_of_a_torus = 11;

/// One stroke by the description of the motion: at most one turn a frame, S-shaped in between.
struct Stroke {
    int direction;
    float began;

    /// @return how far up, eased; period 2 s
    float At(float t) {
        if (t - began >= 2) {
            began = t;
            direction = -direction;
        }
        float const p = (t - began) / 2;
        float const x = direction == 1 ? p : 1 - p;
        return (3 - 2 * x) * x * x;
    }
};

class TorusFountain : public effect_test::EffectTest {
protected:
    void SetUp() override {
        WriteMesh("torus2.asc", "torus2");
        kore::AscModel_ptr const models = Library();
        fountain = std::make_unique<Fountain>(models);
        NameLists(*models, "torus2");
    }

    std::string Drawn() {
        gl::clear_log();
        fountain->InternalDraw();
        return gl::calls();
    }

    void DrawAt(float t) {
        fountain->UpdateLogic(state_at(t));
        Drawn();
    }

    /// Height of a torus above the foot of the column, and its size, from the log.
    static double Height(std::size_t i) { return gl::draws()[2 * i].model_view[13] + 60; }
    static double Size(std::size_t i) { return gl::draws()[2 * i].model_view[0]; }

    static std::string Torus(std::string const& height, std::string const& size) {
        return "PushMatrix Translate(0," + height + ",0) Rotate(90,1,0,0) PushMatrix Scale(" + size + ',' + size + ',' +
               size + ") Color(1,1,1) CallList(torus2) Color(0,0,0) CallList(torus2-lines) PopMatrix PopMatrix ";
    }

    std::unique_ptr<Fountain> fountain;
};

TEST_F(TorusFountain, StepsSmoothlyWithoutClamping) {
    // clang-format off
    std::pair<float, float> const cases[] = {
        {0.f,   0.f},
        {0.5f,  0.5f},
        {1.f,   1.f},
        {0.25f, 0.15625f},
        {1.5f,  0.f},
        {2.f,   -4.f},
        {-1.f,  5.f},
    };
    // clang-format on
    for (auto const& [x, y] : cases) EXPECT_FLOAT_EQ(Fountain::CubicSmoothStep(x), y) << x;
}

TEST_F(TorusFountain, GoesAwayFromTheSecondPoint) {
    struct Row {
        float x;
        float y;
    };
    for (Row const& row : {Row{0, 0}, Row{0.5f, 60}, Row{1, 120}}) {
        kore::Vector3<float> const p = Fountain::Linear({0, 0, 0}, {0, -120, 0}, row.x);
        EXPECT_FLOAT_EQ(p.x, 0);
        EXPECT_FLOAT_EQ(p.y, row.y);
        EXPECT_FLOAT_EQ(p.z, 0);
    }
    kore::Vector3<float> const p = Fountain::Linear({1, 2, 3}, {4, 6, 8}, 1);
    EXPECT_FLOAT_EQ(p.x, -2);
    EXPECT_FLOAT_EQ(p.y, -2);
    EXPECT_FLOAT_EQ(p.z, -2);
    EXPECT_FLOAT_EQ(Fountain::LinearFloat(0, -8, 0), 0);
    EXPECT_FLOAT_EQ(Fountain::LinearFloat(0, -8, 0.5f), 4);
    EXPECT_FLOAT_EQ(Fountain::LinearFloat(0, -8, 1), 8);
    EXPECT_FLOAT_EQ(Fountain::LinearFloat(3, 5, 1), 1);
}

TEST_F(TorusFountain, HasRecordsAtRestOfWhichItDrawsSixOfTwelve) {
    Fountain::sizepos const record;
    EXPECT_EQ(record.position.x, 0);
    EXPECT_EQ(record.position.y, 0);
    EXPECT_EQ(record.position.z, 0);
    EXPECT_STREQ(fountain->Name(), "TorusFountain");
    std::string expected = "PushMatrix Translate(0,-60,0) ";
    for (std::size_t i = 0; i < tori; ++i) expected += Torus("0", "0"); // before the first update
    EXPECT_EQ(Drawn(), expected + "PopMatrix");
    EXPECT_EQ(gl::call_count(), 3 + tori * calls_of_a_torus);
    EXPECT_EQ(gl::model_view_depth(), 1u);
    EXPECT_THAT(gl::errors(), testing::IsEmpty());
}

TEST_F(TorusFountain, DrawsEachTorusInItsPlaceAndSize) {
    DrawAt(1);
    // The first is half up and about to grow, the fourth half down and about to shrink.
    EXPECT_THAT(gl::calls(), testing::StartsWith("PushMatrix Translate(0,-60,0) " + Torus("60", "1")));
    EXPECT_EQ(gl::call_list()[2 + 3 * calls_of_a_torus + 1], "Translate(0,60,0)");
    EXPECT_EQ(gl::call_list()[2 + 3 * calls_of_a_torus + 4], "Scale(9,9,9)");
}

TEST_F(TorusFountain, FollowsItsFormulasForAMinuteAtSixtyFrames) {
    Stroke moves[tori];
    Stroke sizes[tori];
    for (std::size_t i = 0; i < tori; ++i) {
        float const began = static_cast<float>(i % 3) * 2 / 3;
        moves[i] = {i < 3 ? 1 : -1, began};
        sizes[i] = {i < 3 ? 1 : -1, began + 1};
    }
    double least = 1000;
    double most = -1000;
    for (int frame = 0; frame < 3600; ++frame) {
        float const t = static_cast<float>(frame) / 60;
        DrawAt(t);
        for (std::size_t i = 0; i < tori; ++i) {
            // Floats of the same formula in another order: 120 units to seven digits.
            ASSERT_NEAR(Height(i), 120 * moves[i].At(t), 2e-3) << "torus " << i << " at " << t << " s";
            ASSERT_NEAR(Size(i), 8 * sizes[i].At(t) + 1, 2e-4) << "torus " << i << " at " << t << " s";
            if (t < 2) continue; // until the staggered strokes have begun they are extrapolated
            least = std::min(least, Height(i));
            most = std::max(most, Height(i));
        }
    }
    EXPECT_NEAR(least, 0, 0.1);
    EXPECT_NEAR(most, 120, 0.1);
}

TEST_F(TorusFountain, LiesFlatAboutTheVerticalAxis) {
    DrawAt(1);
    auto const centre = gl::transform(gl::draws()[0].model_view, 0, 0, 0);
    auto const axis = gl::transform(gl::draws()[0].model_view, 0, 0, 1);
    EXPECT_NEAR(axis[1] - centre[1], -1, 1e-6);
    EXPECT_NEAR(axis[2] - centre[2], 0, 1e-6);
}

TEST_F(TorusFountain, TurnsEveryTorusOnceAfterALongTime) {
    DrawAt(100);
    for (std::size_t i = 0; i < tori; ++i) {
        EXPECT_NEAR(Height(i), i < 3 ? 120 : 0, 1e-4) << i;
        EXPECT_NEAR(Size(i), i < 3 ? 9 : 1, 1e-4) << i;
    }
    DrawAt(101); // in step from here on
    for (std::size_t i = 0; i < tori; ++i) {
        EXPECT_NEAR(Height(i), 60, 1e-4) << i;
        EXPECT_NEAR(Size(i), 5, 1e-4) << i;
    }
    DrawAt(101.5f);
    for (std::size_t i = 0; i < tori; ++i) {
        EXPECT_NEAR(Height(i), 120 * (i < 3 ? 0.15625 : 0.84375), 1e-4) << i;
    }
}

TEST_F(TorusFountain, GoesOnFromWhereItLeftOffWhenTheTimeStartsAnew) {
    DrawAt(100);
    DrawAt(0); // another scene's time: 50 strokes before the turns, so the steps run out of their range
    double const step = (3 + 2 * 50) * 50.0 * 50.0;
    for (std::size_t i = 0; i < tori; ++i) {
        EXPECT_NEAR(Height(i), 120 * (i < 3 ? 1 - step : step), 100) << i; // printed to six digits
    }
}

TEST_F(TorusFountain, DrawsBothWhateverTheFlagsSay) {
    DrawAt(1);
    std::string const both = gl::calls();
    fountain->DrawSolid(false);
    fountain->DrawWireframe(false);
    fountain->Blink(Type::Wireframe, 0);
    fountain->Blink(Type::Solid, 0);
    EXPECT_EQ(Drawn(), both);
}

TEST_F(TorusFountain, StrobesFacesAgainstLines) {
    fountain->Blink(Type::Strobe, 1);
    DrawAt(0);
    EXPECT_THAT(gl::calls(), HasSubstr("Color(0,0,0) CallList(torus2) Color(1,1,1) CallList(torus2-lines)"));
}

TEST_F(TorusFountain, DrawsNoListWithoutItsModel) {
    std::filesystem::remove(Root() / "data/torus2.asc");
    testing::internal::CaptureStdout();
    Fountain bare(Library());
    EXPECT_THAT(testing::internal::GetCapturedStdout(), testing::EndsWith("data/torus2.asc\n"));
    gl::clear_log();
    bare.InternalDraw();
    ASSERT_EQ(gl::draws().size(), 2 * tori);
    for (gl::Draw const& draw : gl::draws()) EXPECT_EQ(draw.list, 0u);
}

} // namespace
