// SPDX-License-Identifier: MIT
#pragma once

namespace kore {

/// Red, green, blue and alpha, each normally in [0, 1].
template<typename T>
class Color {
public:
    Color(T red_, T green_, T blue_, T alpha_) : red(red_), green(green_), blue(blue_), alpha(alpha_) {}

    T red;
    T green;
    T blue;
    T alpha;
};

/// Perceived brightness of an 8-bit colour: sqrt(0.241 r^2 + 0.691 g^2 + 0.068 b^2), truncated (the HSP colour model).
/// @return 0 to 255
int RGB_brightness(int const& r, int const& g, int const& b);

/// Square root of the luma 0.299 r + 0.587 g + 0.114 b (weights of ITU-R BT.601), truncated.
/// Deliberate: the components are not squared, so white gives 15. Compare the values with each other only.
/// @return 0 to 15 for 8-bit components
int RGB_luma(int const& r, int const& g, int const& b);

} // namespace kore
