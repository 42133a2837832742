// SPDX-License-Identifier: MIT
// The film at the top of README before the flash meter.

#include "tests/flashes/flashmeter.h"
#include "tests/support/temp.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <webp/demux.h>

namespace {

constexpr std::size_t block = 10; // pixels along each side

using Decoder = std::unique_ptr<WebPAnimDecoder, decltype(&WebPAnimDecoderDelete)>;

/// Mean luminances of blocks of pixels.
/// @param pixels  red, green, blue and opacity
flashes::Picture blocks_of(unsigned char const* pixels, std::size_t width, std::size_t height) {
    flashes::Picture picture{width / block, height / block, {}};
    picture.luminances.resize(picture.width * picture.height);
    for (std::size_t y = 0; y < height; ++y) {
        for (std::size_t x = 0; x < width; ++x, pixels += 4) {
            picture.luminances[y / block * picture.width + x / block] +=
                flashes::luminance(pixels[0], pixels[1], pixels[2]) / (block * block);
        }
    }
    return picture;
}

TEST(Preview, IsForEverybody) {
    std::string const file = support::read_all("docs/preview.webp");
    EXPECT_LT(file.size(), 3000000u);
    WebPData const data{reinterpret_cast<unsigned char const*>(file.data()), file.size()};
    Decoder const decoder(WebPAnimDecoderNew(&data, nullptr), WebPAnimDecoderDelete);
    ASSERT_TRUE(decoder);
    WebPAnimInfo info;
    ASSERT_TRUE(WebPAnimDecoderGetInfo(decoder.get(), &info));
    ASSERT_EQ(info.canvas_width % block, 0u);
    ASSERT_EQ(info.canvas_height % block, 0u);

    flashes::FlashMeter meter;
    int most = 0;
    int end = 0; // of a frame, milliseconds
    // Twice, for it is played again and again.
    for (int round = 0; round < 2; ++round) {
        int begin = 0;
        WebPAnimDecoderReset(decoder.get());
        while (WebPAnimDecoderHasMoreFrames(decoder.get())) {
            unsigned char* pixels = nullptr;
            ASSERT_TRUE(WebPAnimDecoderGetNext(decoder.get(), &pixels, &end));
            double const time = (begin + round * 20000) / 1000.0;
            flashes::Verdict const verdict =
                meter.Watch(time, blocks_of(pixels, info.canvas_width, info.canvas_height));
            EXPECT_FALSE(verdict.Fails()) << time << " s";
            EXPECT_FALSE(verdict.AboveTwoFlashes()) << time << " s";
            most = std::max(most, verdict.transitions);
            begin = end;
        }
    }
    EXPECT_NEAR(end, 20000, 100) << "milliseconds";
    EXPECT_GT(most, 1) << "the meter saw it move";
}

} // namespace
