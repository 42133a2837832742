// SPDX-License-Identifier: MIT
// What is done to pictures between the driver and the film.

#include "tools/film/canvas.h"
#include "tools/film/progress.h"
#include "tools/film/sinks.h"

#include <gtest/gtest.h>

TEST(PictureShapes, KeepTheShow4To3UnlessItIsStretched) {
    EXPECT_EQ((PictureShape{.width = 1920, .height = 1080}.Place()), (Area{240, 0, 1440, 1080}));
    EXPECT_EQ((PictureShape{.width = 1080, .height = 1920}.Place()), (Area{0, 555, 1080, 810}));
    EXPECT_EQ((PictureShape{.width = 1024, .height = 768}.Place()), (Area{0, 0, 1024, 768}));
    EXPECT_EQ((PictureShape{.width = 1920, .height = 1080, .stretch = true}.Place()), (Area{0, 0, 1920, 1080}));
    EXPECT_EQ((PictureShape{.width = 1920, .height = 1080}.Bytes()), 6220800u);
}

TEST(AverageSquare, IsTheRoundedMeanOfEachChannel) {
    // Two rows of three pixels, of which the first two are averaged.
    std::uint8_t const pixels[] = {0, 10, 255, 9, 1, 10, 255, 9, 200, 200, 200, 9,
                                   0, 10, 255, 9, 1, 11, 254, 9, 200, 200, 200, 9};
    std::uint8_t mean[4] = {0, 0, 0, 77};
    average_square(pixels, 12, 2, mean);
    EXPECT_EQ(mean[0], 1) << "0.5 is rounded up";
    EXPECT_EQ(mean[1], 10) << "10.25";
    EXPECT_EQ(mean[2], 255) << "254.75";
    EXPECT_EQ(mean[3], 77) << "beyond the pixel";
}

TEST(LumaAndChroma, AreThoseOfBT709) {
    constexpr int levels[] = {0, 1, 127, 128, 254, 255};
    for (int const red : levels) {
        for (int const green : levels) {
            for (int const blue : levels) {
                std::uint8_t const pixel[] = {static_cast<std::uint8_t>(red), static_cast<std::uint8_t>(green),
                                              static_cast<std::uint8_t>(blue)};
                std::uint8_t planes[3];
                to_luma_and_chroma(pixel, planes);
                double const luma = (0.2126 * red + 0.7152 * green + 0.0722 * blue) / 255;
                EXPECT_NEAR(planes[0], 16 + 219 * luma, 0.51);
                EXPECT_NEAR(planes[1], 128 + 224 * (blue / 255.0 - luma) / 1.8556, 0.51);
                EXPECT_NEAR(planes[2], 128 + 224 * (red / 255.0 - luma) / 1.5748, 0.51);
            }
        }
    }
}

TEST(LumaAndChroma, AreThreePlanes) {
    std::uint8_t const pixels[] = {0, 0, 0, 255, 255, 255};
    std::uint8_t planes[6];
    to_luma_and_chroma(pixels, planes);
    EXPECT_EQ(std::vector<int>(planes, planes + 6), (std::vector<int>{16, 235, 128, 128, 128, 128}));
}

TEST(ProgressLines, TellHowFarItIsAndHowLongItTakes) {
    EXPECT_EQ(progress_line(0, 10712, 3), "[........................] 0 of 10712 frames");
    EXPECT_EQ(progress_line(2678, 10712, 200),
              "[######..................] 2678 of 10712 frames, 13.4 a second, 10:00 left");
    EXPECT_EQ(progress_line(10712, 10712, 714),
              "[########################] 10712 of 10712 frames, 15.0 a second, 0:00 left");
    EXPECT_EQ(progress_line(1, 10801, 1), "[........................] 1 of 10801 frames, 1.0 a second, 3:00:00 left");
}
