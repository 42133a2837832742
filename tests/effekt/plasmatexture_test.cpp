// SPDX-License-Identifier: MIT
#include "effekt/plasmatexture.h"

#include "kore/perspective.h"
#include "tests/effekt/plasma.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>

using effect_test::palette_level;
using effect_test::plasma;

namespace {

std::vector<unsigned char> pixels(effect::PlasmaTexture const& texture) {
    return {texture.GetPixels(), texture.GetPixels() + std::ptrdiff_t{texture.GetWidth()} * texture.GetHeight()};
}

TEST(PlasmaTexture, RoundsItsSidesLikeEveryTexture) {
    effect::PlasmaTexture texture;
    EXPECT_TRUE(texture.Init(100, 300));
    EXPECT_EQ(texture.GetWidth(), 128);
    EXPECT_EQ(texture.GetHeight(), 256);
}

TEST(PlasmaTexture, HasABlackPaletteUntilItIsTurned) {
    effect::PlasmaTexture texture;
    for (int i = 0; i < 256; ++i) {
        for (int component = 0; component < 3; ++component) ASSERT_EQ(texture.GetPaletteEntry(i)[component], 0);
    }
}

TEST(PlasmaTexture, TurnsAPaletteOfFourWavesInRedAlone) {
    effect::PlasmaTexture texture;
    int least = 255;
    int most = 0;
    for (double const t : {0.0, 1.0, 500.0, 87272.5, -133.0}) {
        texture.UpdatePalette(t);
        for (int i = 0; i < 256; ++i) {
            unsigned char const* const entry = texture.GetPaletteEntry(i);
            ASSERT_EQ(entry[0], palette_level(t, i)) << "entry " << i << " at " << t;
            ASSERT_EQ(entry[1], 0);
            ASSERT_EQ(entry[2], 0);
            least = std::min<int>(least, entry[0]);
            most = std::max<int>(most, entry[0]);
        }
    }
    EXPECT_EQ(least, 1);
    EXPECT_EQ(most, 255);
}

TEST(PlasmaTexture, TurnsItsPaletteAtEveryMomentByTheFormulaItself) {
    effect::PlasmaTexture texture;
    std::minstd_rand generator(5);
    std::uniform_real_distribution<double> any(-4.3e9, 4.3e9);
    std::vector<double> moments;
    moments.reserve(56000);
    for (int t = 0; t < 8000; ++t) moments.push_back(t); // all steps of its scene
    for (int i = 0; i < 20000; ++i) moments.push_back(any(generator));
    for (int i = 0; i < 20000; ++i) moments.push_back(any(generator) * 1e4);      // where sums are rounded coarsely
    for (int i = -4000; i < 4000; ++i) moments.push_back(i * 133 * kore::PI / 2); // quarter turns, exactly on a step
    for (double const t : moments) {
        texture.UpdatePalette(t);
        for (int i = 0; i < 256; ++i) {
            ASSERT_EQ(texture.GetPaletteEntry(i)[0], palette_level(t, i)) << "entry " << i << " at " << t;
        }
    }
}

TEST(PlasmaTexture, ColoursTheSumOfTwoRingsForEveryPixel) {
    struct Row {
        char const* what;
        int width;
        int height;
        unsigned int t;
    };
    // clang-format off
    Row const rows[] = {
        {"start",                 64,  64,  0},
        {"inside the first step", 64,  64,  15},
        {"the next step",         64,  64,  16},
        {"a second",              64,  64,  500},
        {"the scene's end",       64,  64,  29090},
        {"the show's end",        64,  64,  87272},
        {"wider than high",       256, 64,  12345},
        {"higher than wide",      64,  128, 54321},
        {"the largest",           256, 256, 31415},
        {"the end of counting",   64,  64,  4294967295},
    };
    // clang-format on
    for (Row const& row : rows) {
        SCOPED_TRACE(row.what);
        effect::PlasmaTexture texture;
        texture.Init(row.width, row.height);
        texture.RenderTexture(row.t);
        EXPECT_TRUE(pixels(texture) == plasma(row.width, row.height, row.t));
    }
}

TEST(PlasmaTexture, FollowsItsFormulaOnEveryFrameOfItsScene) {
    effect::PlasmaTexture texture;
    texture.Init(64, 64);
    for (int frame = 0; frame < 870; frame += 29) { // 32 beats
        auto const t = static_cast<unsigned int>(frame * 500 / 60);
        texture.RenderTexture(t);
        ASSERT_TRUE(pixels(texture) == plasma(64, 64, t)) << "frame " << frame;
    }
}

TEST(PlasmaTexture, NeverRendersBlack) {
    effect::PlasmaTexture texture;
    texture.Init(64, 64);
    for (unsigned int t = 0; t < 30000; t += 97) {
        texture.RenderTexture(t);
        auto const picture = pixels(texture);
        ASSERT_GE(*std::min_element(picture.begin(), picture.end()), 1) << t;
    }
}

} // namespace
