// SPDX-License-Identifier: MIT
#include "effekt/texture.h"

#include "tests/effekt/support.h"

#include <algorithm>

using testing::ElementsAre;

namespace {

/// A texture whose bytes can be set.
class Painted final : public effect::Texture {
public:
    void Fill(unsigned char value) { std::fill_n(pixels.get(), size, value); }
    unsigned char& Pixel(int i) { return pixels[static_cast<std::size_t>(i)]; }
    int Size() const { return size; }
};

class Texture : public effect_test::EffectTest {
protected:
    Painted texture;
};

TEST_F(Texture, IsEmptyUntilItIsMade) {
    EXPECT_EQ(texture.GetPixels(), nullptr);
    EXPECT_EQ(texture.GetWidth(), 0);
    EXPECT_EQ(texture.GetHeight(), 0);
    EXPECT_EQ(texture.Size(), 0);
}

TEST_F(Texture, RoundsItsSidesToOneOfThreeSizes) {
    struct Row {
        int w, h;
        int width, height;
    };
    // clang-format off
    Row const rows[] = {
        {64,  64,  64,  64},
        {100, 300, 128, 256},
        {65,  128, 128, 128},
        {129, 64,  256, 64},
        {0,   -1,  64,  64},
        {1,   256, 64,  256},
        {512, 129, 256, 256},
    };
    // clang-format on
    for (Row const& row : rows) {
        SCOPED_TRACE(testing::Message() << row.w << " x " << row.h);
        EXPECT_TRUE(texture.Init(row.w, row.h));
        EXPECT_EQ(texture.GetWidth(), row.width);
        EXPECT_EQ(texture.GetHeight(), row.height);
        EXPECT_EQ(texture.Size(), row.width * row.height);
    }
}

TEST_F(Texture, IsBlackWheneverItIsMade) {
    for (int round = 0; round < 2; ++round) {
        texture.Init(64, 64);
        EXPECT_TRUE(std::all_of(texture.GetPixels(), texture.GetPixels() + std::ptrdiff_t{64} * 64,
                                [](int p) { return p == 0; }));
        texture.Fill(9);
    }
}

TEST_F(Texture, UploadsItselfWithEachOfTheFilters) {
    texture.Init(64, 128);
    texture.Fill(2);
    texture.Pixel(0) = 255;
    // The sum of all bytes passed: each grey level three times.
    double const sum = 3 * (255 + 2 * (64 * 128 - 1));
    struct Row {
        effect::texture_filter filter;
        std::vector<std::string> calls;
    };
    char image[80];
    std::snprintf(image, sizeof image, "TexImage2D(0,3,64,128,0,%g)", sum);
    char mipmaps[80];
    std::snprintf(mipmaps, sizeof mipmaps, "Build2DMipmaps(3,64,128,%g)", sum);
    std::string const bind = "BindTexture(TEXTURE_2D,0)";
    Row const rows[] = {
        {effect::filter_nearest,
         {bind, "TexParameterf(TEXTURE_MAG_FILTER,NEAREST)", "TexParameterf(TEXTURE_MIN_FILTER,NEAREST)", image}},
        {effect::filter_linear,
         {bind, "TexParameterf(TEXTURE_MAG_FILTER,LINEAR)", "TexParameterf(TEXTURE_MIN_FILTER,LINEAR)", image}},
        {effect::filter_mipmap,
         {bind, "TexParameterf(TEXTURE_MAG_FILTER,LINEAR)", "TexParameteri(TEXTURE_MIN_FILTER,LINEAR_MIPMAP_NEAREST)",
          mipmaps}},
        {static_cast<effect::texture_filter>(3), {bind, image}},
    };
    for (Row const& row : rows) {
        SCOPED_TRACE(testing::Message() << "filter " << row.filter);
        gl::clear_log();
        texture.SetTexture(row.filter);
        EXPECT_EQ(gl::call_list(), row.calls);
    }
}

TEST_F(Texture, KeepsTheNumbersOfItsFilters) {
    EXPECT_EQ(effect::filter_nearest, 0);
    EXPECT_EQ(effect::filter_linear, 1);
    EXPECT_EQ(effect::filter_mipmap, 2);
}

} // namespace
