// The stream of OpenGL calls is the product: every call of every frame, compared with recorded checksums.

#include "tests/show/scores.h"
#include "tests/show/wholeshow.h"
#include "tests/support/glrecorder.h"
#include "tests/support/withlook.h"

#include <gtest/gtest.h>
#include <map>

namespace {

struct Sums {
    std::uint64_t calls = 0;
    std::uint64_t stream = 0;

    void AddFrame() {
        constexpr std::uint64_t prime = 1099511628211ULL; // of FNV-1a
        calls += gl::call_count();
        stream = (stream ^ gl::checksum()) * prime;
    }
};

/// Plays the whole show at 60 frames a second.
/// @return sums by title of the scene
std::map<std::string, Sums> play() {
    gl::reset(gl::Logging::Sums);
    std::map<std::string, Sums> sums;
    wholeshow::play(60, gl::clear_log, [&](wholeshow::Frame const& frame) { sums[frame.scene].AddFrame(); });
    return sums;
}

TEST(CallStream, IsTheSameInEveryFrameOfTheShow) {
    auto const sums = play();
    ASSERT_EQ(sums.size(), scores::all().size());
    for (scores::Score const& score : scores::all()) {
        Sums const& scene = sums.at(score.title);
        EXPECT_EQ(scene.calls, score.calls) << score.title;
        EXPECT_EQ(scene.stream, score.stream) << score.title << std::hex << std::showbase << ", now " << scene.stream;
    }
}

TEST(CallStream, ChangesInTheTunnelAloneWithTheWireByTheStandard) {
    support::WithLook const look(support::standard_wire);
    auto const sums = play();
    for (scores::Score const& score : scores::all()) {
        Sums const& scene = sums.at(score.title);
        if (score.make == wire_scene) {
            EXPECT_EQ(scene.calls, 14398605u);
            EXPECT_EQ(scene.stream, 0xe73e516f21ac4c6f);
        } else {
            EXPECT_EQ(scene.stream, score.stream) << score.title;
        }
    }
}

} // namespace
