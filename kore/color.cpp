// SPDX-License-Identifier: MIT
#include "kore/color.h"

#include <cmath>

namespace kore {

namespace {

double square(int v) { return static_cast<double>(static_cast<float>(v * v)); }

} // namespace

int RGB_brightness(int const& r, int const& g, int const& b) {
    double const sum = 0.241 * square(r) + 0.691 * square(g) + 0.068 * square(b);
    return static_cast<int>(std::sqrt(sum));
}

int RGB_luma(int const& r, int const& g, int const& b) {
    float luma = 0.299f * static_cast<float>(r) + 0.587f * static_cast<float>(g);
    luma += 0.114f * static_cast<float>(b);
    return static_cast<int>(std::sqrt(static_cast<double>(luma)));
}

} // namespace kore
