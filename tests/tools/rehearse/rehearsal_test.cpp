// SPDX-License-Identifier: MIT
// What a rehearsal draws is what the recorder draws, in whatever order the frames are asked for.

#include "tools/rehearse/rehearsal.h"

#include "tests/pictures/studio.h"
#include "tests/support/images.h"

#include <GL/gl.h>
#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <random>

namespace {

constexpr int seeks = 200;

std::vector<int> random_frames() {
    std::mt19937 random(17);
    std::uniform_int_distribution<int> frame(0, frame_at(384 * one_beat) - 1);
    std::vector<int> frames;
    for (int i = 0; i < seeks; ++i) frames.push_back(frame(random));
    return frames;
}

/// The recorder's pictures of these frames.
std::map<int, sf::Image> recorded(std::vector<int> frames) {
    std::sort(frames.begin(), frames.end());
    std::map<int, sf::Image> pictures;
    Studio studio;
    if (!studio.Open()) return pictures;
    for (int const frame : frames) {
        if (!pictures.contains(frame)) pictures.emplace(frame, studio.Picture(frame));
    }
    return pictures;
}

/// A rehearsal of the show in an off-screen picture of the studio's size.
struct Stand {
    OffscreenContext context;
    Framebuffer framebuffer;
    support::WithLook const look{support::standard_wire};

    bool Open() {
        if (!context.Open() || !framebuffer.Create(Studio::width, Studio::height, 4)) return false;
        init_gl();
        return true;
    }
};

void build(kore::Demo& demo) { init_demo(demo, nullptr, beat_seconds); }

} // namespace

TEST(Rehearsal, DrawsTheRecordersPictureAfterEveryOfTwoHundredRandomSeeks) {
    auto const frames = random_frames();
    auto const expected = recorded(frames);
    ASSERT_FALSE(expected.empty()) << "OpenGL cannot draw off-screen here";
    Stand stand;
    ASSERT_TRUE(stand.Open());
    Rehearsal rehearsal(build);
    for (int const frame : frames) {
        rehearsal.Seek(frame);
        rehearsal.Draw();
        ASSERT_EQ(differing_pixels(stand.framebuffer.Read(), expected.at(frame), 0), 0u) << "frame " << frame;
    }
}

TEST(Rehearsal, TakesItsDisplayListsAlongWhenItBuildsAnew) {
    auto const lists = [] {
        int count = 0;
        for (GLuint list = 1; list < 100000; ++list) count += glIsList(list) ? 1 : 0;
        return count;
    };
    Stand stand;
    ASSERT_TRUE(stand.Open());
    EXPECT_EQ(lists(), 0);
    {
        Rehearsal rehearsal(build);
        int const once = lists();
        EXPECT_GT(once, 10000);
        rehearsal.Rebuild();
        rehearsal.Rebuild();
        EXPECT_EQ(lists(), once);
    }
    EXPECT_EQ(lists(), 0);
}

TEST(Rehearsal, DrawsTheSameFrameAgainAndAgain) {
    Stand stand;
    ASSERT_TRUE(stand.Open());
    Rehearsal rehearsal(build);
    for (int const beat : {12, 20, 70, 190, 260, 300, 360}) {
        rehearsal.Seek(frame_at(beat * one_beat + 250));
        rehearsal.Draw();
        sf::Image const first = stand.framebuffer.Read();
        for (int i = 0; i < 3; ++i) rehearsal.Draw();
        EXPECT_EQ(differing_pixels(stand.framebuffer.Read(), first, 0), 0u) << "beat " << beat;
    }
}
