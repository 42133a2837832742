// SPDX-License-Identifier: MIT
#include "web/page/additiverandom.h"

#include <cstdlib>
#include <gtest/gtest.h>

// The C library here is the one whose numbers are wanted.
TEST(AdditiveRandom, GivesTheNumbersOfGnuSystems) {
    for (unsigned int const seed : {1u, 0u, 2u, 215517u, 2147483647u, 2147483648u, 4294967295u}) {
        SCOPED_TRACE(seed);
        std::srand(seed);
        AdditiveRandom random(seed);
        for (int i = 0; i < 1000; ++i) ASSERT_EQ(random.Next(), std::rand()) << i;
    }
}
