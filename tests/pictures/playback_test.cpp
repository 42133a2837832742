// SPDX-License-Identifier: MIT
#include "studio.h"
#include "tests/support/images.h"

#include <gtest/gtest.h>

namespace {

/// Moments that might depend on what was drawn before: after a change of scenes, a break, a flip, a flash.
struct Window {
    char const* scene;
    Millibeats from; ///< every frame is drawn from here
    Millibeats to;   ///< up to here, where the pictures are compared
};

// clang-format off
constexpr Window windows[] = {
    // scene       from   to
    {"intro",      0,     13000},
    {"gungirl",    0,     1500},
    {"gungirl",    15500, 17000},
    {"swapper",    3500,  4600},
    {"credits",    0,     1300},
    {"tunnelgate", 0,     1000},
    {"tunnelgate", 51500, 52500},
    {"plasma",     0,     700},
    {"fountain",   0,     1000},
    {"fountain",   36000, 37000},
    {"greets",     0,     1500},
};
// clang-format on

std::string pixels(sf::Image const& image) {
    auto const* const first = reinterpret_cast<char const*>(image.getPixelsPtr());
    return {first, std::size_t{4} * image.getSize().x * image.getSize().y};
}

} // namespace

TEST(Playback, LooksTheSameWhetherTheFramesBeforeWereDrawnOrNot) {
    std::vector<sf::Image> wanted_only;
    {
        Studio studio;
        ASSERT_TRUE(studio.Open()) << "OpenGL cannot draw off-screen here";
        for (Window const& window : windows) {
            wanted_only.push_back(studio.Picture(studio.FrameOf(window.scene, window.to)));
        }
    }
    Studio studio;
    ASSERT_TRUE(studio.Open());
    for (std::size_t i = 0; i < std::size(windows); ++i) {
        SCOPED_TRACE(testing::Message() << windows[i].scene << " " << windows[i].to);
        studio.playback.SkipTo(studio.FrameOf(windows[i].scene, windows[i].from));
        while (studio.playback.NextFrame() < studio.FrameOf(windows[i].scene, windows[i].to)) studio.playback.Draw();
        sf::Image const picture = studio.Picture(studio.FrameOf(windows[i].scene, windows[i].to));
        EXPECT_EQ(differing_pixels(picture, wanted_only[i], 0), 0u);
        EXPECT_TRUE(pixels(picture) == pixels(wanted_only[i]));
    }
}

TEST(Playback, CountsBeatsAndScenesAsTheShowDoes) {
    Studio studio;
    ASSERT_TRUE(studio.Open());
    ScenePlace const& last = studio.timetable.back();
    while (frame_is_before(studio.playback.NextFrame(), last.End())) {
        ASSERT_FALSE(studio.demo.GetFinished());
        studio.playback.Skip();
    }
    EXPECT_EQ(studio.playback.State().beat_count, last.first + last.length - 1);
    studio.playback.Skip();
    EXPECT_TRUE(studio.demo.GetFinished());
}

TEST(Playback, ShowsAWordOnWhiteInTheIntro) {
    Studio studio;
    ASSERT_TRUE(studio.Open());
    sf::Image const picture = studio.Picture(studio.FrameOf("intro", 500));
    EXPECT_GT(black_share(picture), 2);
    EXPECT_LT(black_share(picture), 30);
    sf::Image negative;
    negative.create(Studio::width, Studio::height, sf::Color::White);
    EXPECT_GT(differing_pixels(picture, negative), 0u);
    EXPECT_EQ(picture.getPixel(0, 0), sf::Color::White);
    EXPECT_EQ(picture.getPixel(Studio::width - 1, Studio::height - 1), sf::Color::White);
}
