// SPDX-License-Identifier: MIT
#include "show/scatter.h"

#include <gtest/gtest.h>

namespace {

/// Returns the ranges instead of numbers drawn from them.
class Ranges final : public Scatter {
public:
    using Scatter::Scatter;
    float s(float f) override { return f; }
};

TEST(Scatter, DrawsTurnsAndShiftsInRangesOfTheirOwn) {
    Ranges ranges(10, 3.5f);
    float const expected[] = {1, 1, 10, 10, 10, 3.5f, 3.5f, 3.5f, 1, 1};
    for (int i = 0; i < 10; ++i) EXPECT_EQ(ranges.set(i - 2), expected[i]) << i - 2;
}

TEST(Scatter, DrawsFromTheProcessWideGenerator) {
    std::srand(7);
    float const expected = static_cast<float>(std::rand() % 2000) / 100 - 10;
    std::srand(7);
    Scatter set(10, 0.1f);
    EXPECT_EQ(set.set(0), expected);
}

} // namespace
