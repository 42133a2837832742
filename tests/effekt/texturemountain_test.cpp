// SPDX-License-Identifier: MIT
#include "effekt/texturemountain.h"

#include "tests/effekt/plasma.h"
#include "tests/effekt/support.h"

using effect_test::state_at;

namespace {

using Type = kore::BlinkerInterface::BlinkerType;

constexpr std::size_t cells = std::size_t{63} * 63;
constexpr std::size_t calls_of_a_cell = 22; // two colours, four primitives of five

class TextureMountain : public effect_test::EffectTest {
protected:
    static std::string Corner(int x, int y, int level) {
        char text[60];
        float const height = 255.0f / static_cast<float>(level) / 50;
        std::snprintf(text, sizeof text, "Vertex(%d,%d,%g)", x, y, static_cast<double>(height));
        return text;
    }

    /// The expected calls of cell k, counted along the rows.
    static std::string Cell(std::vector<unsigned char> const& picture, std::size_t k) {
        int const x = static_cast<int>(k % 63) - 32;
        int const y = static_cast<int>(k / 63) - 32;
        std::string const p00 = Corner(x, y, picture[k]);
        std::string const p01 = Corner(x + 1, y, picture[k + 1]);
        std::string const p11 = Corner(x + 1, y + 1, picture[k + 65]);
        std::string const p10 = Corner(x, y + 1, picture[k + 64]);
        std::string const lower = p00 + ' ' + p01 + ' ' + p11 + " End ";
        std::string const upper = p00 + ' ' + p11 + ' ' + p10 + " End ";
        return "Color(1,1,1) Begin(POLYGON) " + lower + "Begin(POLYGON) " + upper + "Color(0,0,0) Begin(LINES) " +
               lower + "Begin(LINES) " + upper;
    }

    /// The logged calls of cell k.
    static std::string Drawn(std::size_t k) {
        std::string calls;
        for (std::size_t i = 0; i < calls_of_a_cell; ++i) calls += gl::call_list()[1 + k * calls_of_a_cell + i] + ' ';
        return calls;
    }

    void DrawAt(float t) {
        mountain.UpdateLogic(state_at(t));
        gl::clear_log();
        mountain.InternalDraw();
    }

    effect::TextureMountain mountain;
};

TEST_F(TextureMountain, DrawsInMoreThanEightyThousandCalls) {
    EXPECT_STREQ(mountain.Name(), "TextureMountain");
    DrawAt(1);
    EXPECT_EQ(gl::call_count(), 2 + 87318u);
    EXPECT_EQ(gl::call_count(), 2 + cells * calls_of_a_cell);
    EXPECT_EQ(gl::call_list().front(), "PushMatrix");
    EXPECT_EQ(gl::call_list().back(), "PopMatrix");
    EXPECT_EQ(gl::model_view_depth(), 1u);
    EXPECT_THAT(gl::errors(), testing::IsEmpty());
}

TEST_F(TextureMountain, ReadsTheFirstAndTheLastCellsOfItsPlasma) {
    DrawAt(1);
    auto const picture = effect_test::plasma(64, 64, 500);
    for (std::size_t const k :
         {std::size_t{0}, std::size_t{1}, std::size_t{62}, std::size_t{63}, cells - 63, cells - 2, cells - 1}) {
        SCOPED_TRACE(testing::Message() << "cell " << k);
        EXPECT_EQ(Drawn(k), Cell(picture, k));
    }
}

TEST_F(TextureMountain, StartsEachRowOneTexelFurtherLeft) {
    DrawAt(2);
    auto const picture = effect_test::plasma(64, 64, 1000);
    for (std::size_t row = 0; row < 63; ++row) ASSERT_EQ(Drawn(row * 63), Cell(picture, row * 63)) << "row " << row;
    // The first corner of the second row is the last texel of the first.
    EXPECT_EQ(gl::call_list()[1 + 63 * calls_of_a_cell + 2], Corner(-32, -31, picture[63]));
}

TEST_F(TextureMountain, DrawsEveryCellByTheFormulaAtSeveralTimes) {
    for (float const t : {0.f, 3.14f, 14.5f}) {
        SCOPED_TRACE(testing::Message() << "at " << t << " s");
        DrawAt(t);
        auto const picture = effect_test::plasma(64, 64, static_cast<unsigned int>(500 * t));
        for (std::size_t k = 0; k < cells; ++k) ASSERT_EQ(Drawn(k), Cell(picture, k)) << "cell " << k;
    }
}

TEST_F(TextureMountain, TakesTheTimeInWholeStepsOfAFiveHundredth) {
    DrawAt(0.0319f); // step 15
    std::uint64_t const early = gl::checksum();
    DrawAt(0.0301f); // step 15
    EXPECT_EQ(gl::checksum(), early);
    DrawAt(0.0321f); // step 16
    EXPECT_NE(gl::checksum(), early);
}

TEST_F(TextureMountain, WrapsATimeJustBelowZeroToZero) {
    DrawAt(0);
    std::uint64_t const start = gl::checksum();
    DrawAt(-0.001f); // truncated, not rounded down
    EXPECT_EQ(gl::checksum(), start);
}

TEST_F(TextureMountain, IsInfinitelyHighWhereItsPictureIsBlack) {
    gl::clear_log();
    mountain.InternalDraw(); // before the first update
    EXPECT_EQ(gl::call_list()[2], "Begin(POLYGON)");
    EXPECT_EQ(gl::call_list()[3], "Vertex(-32,-32,inf)");
}

TEST_F(TextureMountain, SwapsFacesAndLines) {
    mountain.Blink(Type::Strobe, 1);
    DrawAt(1);
    EXPECT_EQ(gl::call_list()[1], "Color(0,0,0)");
    EXPECT_EQ(gl::call_list()[12], "Color(1,1,1)");
}

TEST_F(TextureMountain, DrawsFacesAndLinesWhateverTheFlagsSay) {
    DrawAt(1);
    std::uint64_t const both = gl::checksum();
    mountain.DrawSolid(false);
    mountain.DrawWireframe(false);
    mountain.Blink(Type::Wireframe, 0);
    mountain.Blink(Type::Solid, 0);
    DrawAt(1);
    EXPECT_EQ(gl::checksum(), both);
}

} // namespace
