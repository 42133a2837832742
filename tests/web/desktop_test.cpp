// SPDX-License-Identifier: MIT
#include "tests/support/command.h"
#include "tests/support/temp.h"
#include "tests/web/filmstrip.h"
#include "tests/web/oddcalls.h"
#include "tools/offscreen/framebuffer.h"
#include "tools/offscreen/offscreencontext.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <iostream>
#include <map>
#include <sstream>

namespace {

constexpr std::size_t pixels = std::size_t{filmstrip::width} * filmstrip::height;

/// A desktop driver beside the layer.
class LayerBesideADesktopDriver : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(context.Open());
        ASSERT_TRUE(framebuffer.Create(filmstrip::width, filmstrip::height, filmstrip::samples));
    }

    static support::Outcome Layer(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), LAYER_PROGRAM);
        return support::run(arguments, {{}, {}, std::chrono::minutes(5)});
    }

    OffscreenContext context;
    Framebuffer framebuffer;
};

/// @param other  three bytes a pixel
std::size_t different(sf::Image const& picture, std::string const& other) {
    std::size_t count = 0;
    for (std::size_t i = 0; i < pixels; ++i) {
        auto const* const p = picture.getPixelsPtr() + 4 * i;
        auto const* const q = other.data() + 3 * i;
        if (!std::equal(p, p + 3, q, [](sf::Uint8 a, char b) { return a == static_cast<sf::Uint8>(b); })) ++count;
    }
    return count;
}

} // namespace

// Both draw with one software rasteriser. Beyond that: at most one pixel in a thousand, for lines are rasterised by
// rules that leave a choice.
TEST_F(LayerBesideADesktopDriver, DrawsTheSamePictures) {
    support::TempFolder const folder;
    std::string const path = folder.Path("frames");
    support::Outcome const layer = Layer({"frames", path});
    ASSERT_EQ(layer.status, 0) << layer.error;

    std::ifstream file(path, std::ios::binary);
    std::string other(3 * pixels, '\0');
    std::map<std::string, std::size_t> worst;
    int compared = 0;
    filmstrip::play([&](filmstrip::Frame const& frame) {
        ASSERT_TRUE(file.read(other.data(), static_cast<std::streamsize>(other.size())));
        std::size_t const count = different(framebuffer.Read(), other);
        EXPECT_LE(count, pixels / 1000) << frame.scene << ", frame " << frame.number;
        worst[frame.scene] = std::max(worst[frame.scene], count);
        ++compared;
    });
    EXPECT_EQ(compared, 400);
    for (auto const& [scene, count] : worst) std::cout << scene << ": at most " << count << " pixels differ\n";
    EXPECT_EQ(worst["Credits"], 0u) << "draws no lines";
}

TEST_F(LayerBesideADesktopDriver, RaisesTheSameErrors) {
    support::Outcome const layer = Layer({"errors"});
    ASSERT_EQ(layer.status, 0) << layer.error;
    std::istringstream lines(layer.output);
    for (std::string const& expected : oddcalls::errors()) {
        std::string line;
        ASSERT_TRUE(std::getline(lines, line));
        EXPECT_EQ(line, expected);
    }
}
