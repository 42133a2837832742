// SPDX-License-Identifier: MIT
// What the layer does without a driver.

#include "runtime/frame.h"
#include "tests/show/wholeshow.h"
#include "tests/support/allocations.h"
#include "tests/web/nodriver.h"
#include "web/gl/fixedgl.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>

TEST(LayerWithoutADriver, AllocatesNothingInASteadyFrame) {
    ASSERT_TRUE(fixedgl::open(nodriver::make()));
    init_gl();
    long before = 0;
    long frames = 0;
    std::map<std::string, long> made;
    std::map<std::string, long> most_draws;
    wholeshow::play(
        60,
        [&] {
            before = allocations::made;
            nodriver::draw_calls = 0;
        },
        [&](wholeshow::Frame const& frame) {
            fixedgl::flush();
            long const here = allocations::made - before;
            ++frames;
            made[frame.scene] += frame.first ? 0 : here;
            most_draws[frame.scene] = std::max(most_draws[frame.scene], nodriver::draw_calls);
        });
    fixedgl::close();
    EXPECT_GT(frames, 10000);
    for (auto const& [scene, count] : made) EXPECT_EQ(count, 0) << scene;
    for (auto const& [scene, draws] : most_draws) {
        EXPECT_GT(draws, 0) << scene;
        EXPECT_LT(draws, 300) << scene;
        std::cout << scene << ": at most " << draws << " draw calls a frame\n";
    }
}
