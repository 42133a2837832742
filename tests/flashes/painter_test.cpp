// SPDX-License-Identifier: MIT
// The painter beside the driver: what the flash meter sees is what an audience sees.

#include "runtime/frame.h"
#include "runtime/playback.h"
#include "tests/support/command.h"
#include "tests/support/withlook.h"
#include "tools/offscreen/framebuffer.h"
#include "tools/offscreen/offscreencontext.h"
#include "tools/record/timetable.h"

#include <cmath>
#include <gtest/gtest.h>
#include <iterator>
#include <sstream>

namespace {

constexpr unsigned int width = 1024; // pixels
constexpr unsigned int height = 768;
constexpr unsigned int columns = 32; // blocks of pixels, as the meter sees them
constexpr unsigned int rows = 24;
constexpr unsigned int samples = 4;    // per pixel
constexpr float same = 0.1f;           // the least change of luminance that counts
constexpr double most_differing = 0.1; // of the blocks: a flash takes a quarter

/// Mean grey levels of the blocks, row by row.
std::vector<float> blocks(sf::Image const& picture) {
    std::vector<float> levels(columns * rows);
    sf::Uint8 const* pixel = picture.getPixelsPtr();
    for (unsigned int y = 0; y < height; ++y) {
        for (unsigned int x = 0; x < width; ++x, pixel += 4) { // red, green, blue and opacity
            levels[y * rows / height * columns + x * columns / width] += static_cast<float>(*pixel) / 255;
        }
    }
    for (float& level : levels) level *= static_cast<float>(columns * rows) / (width * height);
    return levels;
}

class Painter : public testing::TestWithParam<bool> {
protected:
    void SetUp() override {
        ASSERT_TRUE(context.Open() && framebuffer.Create(width, height, samples)) << "OpenGL cannot draw here";
        init_gl();
        init_demo(demo, nullptr, beat_seconds);
        for (ScenePlace const& place : make_timetable(demo)) {
            for (Millibeats const moment : place.moments) frames.push_back(frame_at(place.Begin() + moment));
        }
    }

    /// What the painter makes of the frames.
    std::vector<std::vector<float>> Paint() const {
        std::vector<std::string> command{PAINT, GetParam() ? "calm" : "full"};
        for (int const frame : frames) command.push_back(std::to_string(frame));
        support::Outcome const outcome = support::run(command);
        EXPECT_EQ(outcome.status, 0) << outcome.error;
        std::vector<std::vector<float>> pictures;
        std::istringstream lines(outcome.output);
        for (std::string line; std::getline(lines, line);) {
            std::istringstream levels(line);
            pictures.emplace_back(std::istream_iterator<float>(levels), std::istream_iterator<float>());
        }
        return pictures;
    }

    OffscreenContext context;
    Framebuffer framebuffer;
    support::WithLook look{{.standard_wire = true, .calm = GetParam()}};
    kore::Demo demo{beat_seconds};
    std::vector<int> frames;
};

TEST_P(Painter, PaintsWhatTheDriverDraws) {
    auto const painted = Paint();
    ASSERT_EQ(painted.size(), frames.size());
    Playback playback(demo, recorded_rate);
    for (std::size_t i = 0; i < frames.size(); ++i) {
        playback.SkipTo(frames[i]);
        playback.Draw();
        std::vector<float> const drawn = blocks(framebuffer.Read());
        ASSERT_EQ(painted[i].size(), drawn.size());
        int differing = 0;
        for (std::size_t b = 0; b < drawn.size(); ++b) differing += std::abs(painted[i][b] - drawn[b]) >= same;
        EXPECT_LE(differing, most_differing * columns * rows) << "frame " << frames[i];
    }
}

INSTANTIATE_TEST_SUITE_P(Looks, Painter, testing::Bool(),
                         [](auto const& look) { return look.param ? "Calm" : "Full"; });

} // namespace
