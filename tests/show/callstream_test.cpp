// SPDX-License-Identifier: MIT
// The stream of OpenGL calls is the product: every call of every frame, compared with recorded checksums.

#include "tests/show/scores.h"
#include "tests/show/wholeshow.h"
#include "tests/support/glrecorder.h"
#include "tests/support/withlook.h"

#include <gtest/gtest.h>
#include <map>
#include <ostream>

namespace {

struct Sums {
    std::uint64_t calls = 0;
    std::uint64_t stream = 0;

    void AddFrame() {
        constexpr std::uint64_t prime = 1099511628211ULL; // of FNV-1a
        calls += gl::call_count();
        stream = (stream ^ gl::checksum()) * prime;
    }
    bool operator==(Sums const&) const = default;
};

/// As it stands in scores.cpp.
std::ostream& operator<<(std::ostream& out, Sums const& sums) {
    return out << sums.calls << ", 0x" << std::hex << sums.stream << std::dec;
}

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
        EXPECT_EQ(scene, (Sums{score.calls, score.stream})) << score.title;
    }
}

TEST(CallStream, ChangesInTheTunnelAloneWithTheWireByTheStandard) {
    support::WithLook const look(support::standard_wire);
    constexpr Sums by_the_standard{14398605, 0xe73e516f21ac4c6f};
    auto const sums = play();
    for (scores::Score const& score : scores::all()) {
        Sums const& scene = sums.at(score.title);
        bool const tunnel = score.make == wire_scene;
        EXPECT_EQ(scene, tunnel ? by_the_standard : (Sums{score.calls, score.stream})) << score.title;
    }
}

} // namespace
