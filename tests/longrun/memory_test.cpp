// SPDX-License-Identifier: MIT
// Ten shows in one process use no more memory than two. Allocates by counting operators.

#include "tests/show/scores.h"
#include "tests/show/wholeshow.h"
#include "tests/support/allocations.h"

#include <gtest/gtest.h>
#include <iostream>
#include <malloc.h>
#include <vector>

namespace {

constexpr std::size_t shows = 10;
constexpr std::size_t warm_up = 2;

/// Not the resident pages: how many of them the heap's holes keep differs by hundreds of KiB from one show to the next.
/// @return memory that malloc has handed out, to whomever, KiB
long in_use() {
    struct mallinfo2 const info = mallinfo2();
    return static_cast<long>((info.uordblks + info.hblkhd) / 1024);
}

struct Taken {
    long blocks;
    long kib;
};

/// Plays one show to its end.
Taken play_show() {
    int const beats = wholeshow::play(
        60, [] {}, [](wholeshow::Frame const&) {});
    EXPECT_EQ(beats, scores::show_beats);
    long const blocks = allocations::live;
    return {blocks, in_use()};
}

TEST(Memory, IsFlatOverTenShows) {
    std::vector<Taken> after;
    after.reserve(shows);
    while (after.size() < shows) after.push_back(play_show());
    for (Taken const& taken : after) std::cout << taken.blocks << " blocks, " << taken.kib << " KiB in use\n";

    ASSERT_GT(after[0].blocks, 0);
#ifndef __SANITIZE_ADDRESS__ // it has a heap of its own, and looks for leaks itself
    ASSERT_GT(after[0].kib, 0);
#endif
    Taken const warm = after[warm_up - 1];
    for (std::size_t show = warm_up; show < shows; ++show) {
        EXPECT_EQ(after[show].blocks, warm.blocks) << "after show " << show + 1;
#ifndef __SANITIZE_ADDRESS__
        EXPECT_LE(after[show].kib, warm.kib + 1) << "after show " << show + 1;
#endif
    }
}

} // namespace
