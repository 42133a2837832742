// SPDX-License-Identifier: MIT
#include "tools/files/png.h"

#include "tests/support/images.h"
#include "tests/support/temp.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <random>

namespace fs = std::filesystem;
using support::read_all;

namespace {

sf::Image noise(unsigned int width, unsigned int height) {
    std::minstd_rand generator(132);
    sf::Image image = plain_image(width, height);
    auto const level = [&] { return static_cast<sf::Uint8>(generator() >> 8); };
    for (unsigned int y = 0; y < height; ++y) {
        for (unsigned int x = 0; x < width; ++x) image.setPixel(x, y, {level(), level(), level()});
    }
    return image;
}

sf::Image decoded(std::string const& bytes) {
    sf::Image image;
    EXPECT_TRUE(image.loadFromMemory(bytes.data(), bytes.size()));
    return image;
}

} // namespace

TEST(Png, GivesBackEveryPixel) {
    for (auto const& [width, height] : {std::pair{1u, 1u}, {1u, 700u}, {700u, 1u}, {97u, 61u}}) {
        sf::Image const image = noise(width, height);
        EXPECT_EQ(differing_pixels(decoded(encode_png(image)), image, 0), 0u) << width << 'x' << height;
    }
}

TEST(Png, LeavesOpacityOut) {
    sf::Image const image = plain_image(3, 2, sf::Color(10, 20, 30, 40));
    EXPECT_EQ(decoded(encode_png(image)).getPixel(2, 1), sf::Color(10, 20, 30, 255));
}

TEST(Png, IsTheSameForTheSamePicture) {
    EXPECT_EQ(encode_png(noise(50, 40)), encode_png(noise(50, 40)));
    EXPECT_NE(encode_png(noise(50, 40)), encode_png(noise(50, 41)));
}

TEST(Png, IsNoLargerThanThePictureLibrarysOwn) {
    support::TempFolder const folder;
    int pictures = 0;
    for (char const* const place : {"/docs", "/tests/pictures/reference"}) {
        for (auto const& entry : fs::directory_iterator(HARDSILENCE_SOURCE_DIR + std::string(place))) {
            if (entry.path().extension() != ".png") continue;
            sf::Image image;
            ASSERT_TRUE(image.loadFromFile(entry.path().string()));
            ASSERT_TRUE(image.saveToFile(folder.Path("a.png")));
            EXPECT_LE(encode_png(image).size(), fs::file_size(folder.Path("a.png"))) << entry.path();
            ++pictures;
        }
    }
    EXPECT_GE(pictures, 20);
}

TEST(Png, IsNothingWithoutPixels) {
    support::TempFolder const folder;
    EXPECT_EQ(encode_png(sf::Image()), "");
    EXPECT_EQ(write_png(folder.Path("a.png"), sf::Image()),
              "cannot write " + folder.Path("a.png") + ": it cannot be encoded");
    EXPECT_FALSE(fs::exists(folder.Path("a.png")));
}

TEST(Png, HasAStatedLargestSize) {
    EXPECT_EQ(refuse_size("it", {8192, 8192}) + refuse_size("it", {65535, 1024}) + refuse_size("it", {1, 65535}), "");
    std::pair<PictureSize, std::string> const cases[] = {
        {{8193, 8192}, "8193x8192"},       {{65536, 1}, "65536x1"},
        {{1, 65536}, "1x65536"},           {{4294967296, 4294967296}, "4294967296x4294967296"},
        {{4294967297, 1}, "4294967297x1"},
    };
    for (auto const& [size, text] : cases) {
        EXPECT_EQ(refuse_size("it", size), "it would have " + text +
                                               " pixels; no side may have more than 65535, nor "
                                               "all of it more than 67108864");
    }
    EXPECT_EQ(encode_png(plain_image(65536, 1)), "");
}

TEST(Png, IsWrittenWhole) {
    support::TempFolder const folder;
    sf::Image const image = noise(30, 20);
    EXPECT_EQ(write_png(folder.Path("a.png"), image), "");
    EXPECT_EQ(read_all(folder.Path("a.png")), encode_png(image));
}

TEST(Png, IsKnownByItsEnding) {
    for (char const* const name : {"a.png", "a.PNG", "b/a.x.Png"}) EXPECT_TRUE(is_png_name(name)) << name;
    for (char const* const name : {"", "a", ".png", "a.png/", "a.png.jpg", "a.pn", "png"}) {
        EXPECT_FALSE(is_png_name(name)) << name;
    }
}
