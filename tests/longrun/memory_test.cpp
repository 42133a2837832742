// Ten shows in one process use no more memory than two. Allocates by counting operators.

#include "tests/show/scores.h"
#include "tests/show/wholeshow.h"
#include "tests/support/allocations.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iostream>
#include <malloc.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr std::size_t shows = 10;
constexpr std::size_t warm_up = 2;

/// @return resident memory of the process, KiB, after the heap has returned its free pages
long resident() {
    malloc_trim(0);
    std::ifstream statm("/proc/self/statm");
    long size = 0;
    long pages = 0;
    statm >> size >> pages;
    return pages * (sysconf(_SC_PAGESIZE) / 1024);
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
    return {blocks, resident()};
}

TEST(Memory, IsFlatOverTenShows) {
    std::vector<Taken> after;
    after.reserve(shows);
    while (after.size() < shows) after.push_back(play_show());
    for (Taken const& taken : after) std::cout << taken.blocks << " blocks, " << taken.kib << " KiB resident\n";

    ASSERT_GT(after[0].blocks, 0);
    ASSERT_GT(after[0].kib, 0);
    Taken const warm = after[warm_up - 1];
    for (std::size_t show = warm_up; show < shows; ++show) {
        EXPECT_EQ(after[show].blocks, warm.blocks) << "after show " << show + 1;
#ifndef __SANITIZE_ADDRESS__        // it keeps freed memory, and looks for leaks itself
        constexpr long slack = 128; // KiB: the heap is fragmented differently in each show
        EXPECT_LE(after[show].kib, warm.kib + slack) << "after show " << show + 1;
#endif
    }
}

} // namespace
