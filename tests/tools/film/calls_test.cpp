// SPDX-License-Identifier: MIT
// The calls of the frames that the recorder draws, beside the program's.

#include "runtime/frame.h"
#include "runtime/playback.h"
#include "show/show.h"
#include "tests/support/glrecorder.h"
#include "tests/support/withlook.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

constexpr int rate = 60; // frames a second
constexpr int step = 3;  // one of so many processes
constexpr int frames = 10473;

struct Show {
    Show() { init_demo(demo, nullptr, beat_seconds); }
    kore::Demo demo{beat_seconds};
};

/// The calls of a frame, see gl::checksum.
template<typename Draw>
std::uint64_t calls(Draw draw) {
    gl::clear_log();
    draw();
    return gl::checksum();
}

/// As the program's loop does it, on a clock that shows the frames' times; its measured frame rate wavers.
std::vector<std::uint64_t> live() {
    Show show;
    Stepper stepper(show.demo, beat_seconds);
    std::vector<std::uint64_t> sums;
    for (int k = 0; k < frames; ++k) {
        stepper.Update(static_cast<float>(k) / static_cast<float>(rate), static_cast<float>(50 + k % 17));
        sums.push_back(calls([&] { stepper.Draw({}); }));
    }
    return sums;
}

} // namespace

TEST(RecordedCalls, AreThoseOfTheProgramAtTheSameClock) {
    support::WithLook const look(support::standard_wire);
    gl::reset(gl::Logging::Sums);
    auto const expected = live();
    Show show;
    Playback playback(show.demo, rate);
    for (int k = 2; k < frames; k += step) {
        playback.SkipTo(k);
        ASSERT_EQ(calls([&] { playback.Draw(); }), expected[static_cast<std::size_t>(k)]) << "frame " << k;
    }
}
