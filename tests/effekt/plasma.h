// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

namespace effect_test {

/// The engine's value of pi.
constexpr double engine_pi = 3.141592653589794;

/// First byte of an entry of the plasma's palette.
/// @param t  time, in steps of 1/500 s
int palette_level(double t, int index);

/// The plasma's picture, computed pixel by pixel from the formulas, without tables or running offsets.
/// @return height x width bytes, row by row
std::vector<unsigned char> plasma(int width, int height, unsigned int t);

} // namespace effect_test
