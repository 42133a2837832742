// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// The numbers of rand() on GNU systems, where the show was made: its debris is scattered by them, and is to lie alike
/// everywhere. Additive feedback, x[n] = x[n-3] + x[n-31], of which the highest 31 bits are given out (random(3);
/// Knuth, The Art of Computer Programming, section 3.2.2).
class AdditiveRandom {
public:
    explicit AdditiveRandom(std::uint32_t seed = 1) { Seed(seed); }

    void Seed(std::uint32_t seed) {
        // The first ones by Lehmer's generator: multiplied by 16807 modulo 2^31 - 1.
        constexpr std::int64_t modulus = 2147483647;
        auto word = static_cast<std::int64_t>(static_cast<std::int32_t>(seed == 0 ? 1 : seed));
        for (std::uint32_t& number : numbers) {
            number = static_cast<std::uint32_t>(word);
            word = 16807 * word % modulus;
            if (word < 0) word += modulus;
        }
        next = 3; // the first three count as the youngest
        for (std::size_t i = 0; i < 10 * numbers.size(); ++i) Next();
    }

    /// @return 0 to 2^31 - 1
    std::int32_t Next() {
        std::uint32_t const sum = numbers[(next + 28) % 31] + numbers[next];
        numbers[next] = sum;
        next = (next + 1) % 31;
        return static_cast<std::int32_t>(sum >> 1);
    }

private:
    std::array<std::uint32_t, 31> numbers{}; ///< the last ones
    std::size_t next = 0;                    ///< place of the oldest
};
