// SPDX-License-Identifier: MIT
// How far the beat grid, a sum of floats, drifts from 132 beats a minute.

#include "runtime/beatclock.h"
#include "tests/show/scores.h"

#include <cmath>
#include <gtest/gtest.h>
#include <iostream>
#include <limits>

namespace {

constexpr int last_beat = 9999;

double exact_time(int beat) { return beat * 60.0 / beats_per_minute; }

/// The first float at which the clock counts its next beat; counts that beat.
/// @param not_yet  a time before that
float next_beat(BeatClock& clock, float not_yet) {
    float counts = not_yet + 1;
    auto const counts_at = [&clock](float time) {
        BeatClock copy = clock;
        kore::StateData state;
        state.time = time;
        copy.Count(state);
        return state.new_beat;
    };
    for (;;) {
        float const middle = not_yet + (counts - not_yet) / 2;
        if (middle <= not_yet || middle >= counts) break;
        (counts_at(middle) ? counts : not_yet) = middle;
    }
    kore::StateData state;
    state.time = counts;
    clock.Count(state);
    EXPECT_TRUE(state.new_beat);
    return counts;
}

/// The most that a sum of n float beats can be off: the beat's own rounding n times, and half a unit in the last place
/// of each sum. (N. Higham, "Accuracy and Stability of Numerical Algorithms", 2nd edition, section 4.2.)
class Bound {
public:
    explicit Bound(float beat) : beat_error(std::abs(beat - exact_time(1))) {}

    double Add(float sum) {
        bound += beat_error + (std::nextafter(sum, std::numeric_limits<float>::infinity()) - sum) / 2;
        return bound;
    }

private:
    double beat_error;
    double bound = 0;
};

TEST(BeatGrid, DriftsByTheRoundingOfFloatSumsAndNoMore) {
    float const beat = beat2seconds(beats_per_minute, 4);
    BeatClock clock(beat);
    Bound bound(beat);
    kore::StateData first;
    clock.Count(first);
    ASSERT_TRUE(first.new_beat);

    float at = 0;
    float model = 0; // the sum, rounded from double each time
    double in_show = 0;
    double at_last = 0;
    for (int n = 1; n <= last_beat; ++n) {
        at = next_beat(clock, at);
        model = static_cast<float>(static_cast<double>(model) + static_cast<double>(beat));
        ASSERT_EQ(at, model) << "beat " << n;
        at_last = static_cast<double>(at) - exact_time(n);
        ASSERT_LE(std::abs(at_last), bound.Add(at)) << "beat " << n;
        if (n <= scores::show_beats) in_show = std::max(in_show, std::abs(at_last));
    }
    std::cout << "late at beat " << last_beat << ": " << at_last * 1000 << " ms; at most " << in_show * 1000
              << " ms within the show\n";
    EXPECT_LT(in_show, 0.0005); // seconds: imperceptible
    EXPECT_LT(std::abs(at_last), 0.34);
}

} // namespace
