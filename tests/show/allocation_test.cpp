// SPDX-License-Identifier: MIT
#include "tests/show/scores.h"
#include "tests/show/wholeshow.h"
#include "tests/support/allocations.h"

#include <cmath>
#include <gtest/gtest.h>
#include <iostream>
#include <map>
#include <new>

namespace {

TEST(Allocation, IsCountedHereByEveryOperator) {
    long const before = allocations::made;
    auto const one = std::make_unique<int>(1);
    EXPECT_EQ(allocations::made, before + 1);
    EXPECT_EQ(*one, 1);
    std::unique_ptr<char[]> const some(new (std::nothrow) char[2]);
    EXPECT_EQ(allocations::made, before + 2);
    EXPECT_NE(some, nullptr);
}

TEST(Allocation, HappensInNoFrameAfterTheFirstOfAScene) {
    std::map<std::string, long> by_scene;
    for (scores::Score const& score : scores::all()) by_scene[score.title] = 0;
    long before = 0;
    long frames = 0;
    wholeshow::play(
        60, [&] { before = allocations::made; },
        [&](wholeshow::Frame const& frame) {
            long const made = allocations::made - before;
            ++frames;
            if (!frame.first) by_scene.find(frame.scene)->second += made;
        });
    long all = 0;
    for (auto const& [name, made] : by_scene) {
        EXPECT_EQ(made, 0) << name;
        all += made;
    }
    // 60 a second at 132 beats a minute, up to and including the one that ends the show.
    EXPECT_EQ(frames, static_cast<long>(std::ceil(scores::show_beats * 60 * 60 / 132.0)) + 1);
    std::cout << all << " allocations in " << frames << " frames\n";
}

} // namespace
