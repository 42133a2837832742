// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <vector>

/// How much one bar of the music differs from another.
namespace variety {

constexpr int slots = 32; ///< a bar's slots, an eighth of a beat each
constexpr int bands = 48; ///< 40 to 16000 Hz, evenly by ratio

/// Levels of one bar, decibels, slot after slot.
using Bar = std::array<double, static_cast<std::size_t>(slots) * bands>;

/// The 96 bars of the recording under test; computed once.
std::vector<Bar> const& bars();

/// Root mean square over all slots and bands, decibels.
double difference_db(Bar const& a, Bar const& b);

/// The middle of the values, the mean of the two middle ones for an even count; 0 when there is none.
double median(std::vector<double> values);

} // namespace variety
