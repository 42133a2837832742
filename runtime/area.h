// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>

/// A rectangle of pixels.
struct Area {
    int x = 0; ///< of its left edge
    int y = 0; ///< of its upper edge
    int width = 0;
    int height = 0;

    bool operator==(Area const&) const = default;
};

/// @return the area of this size in the middle of another
constexpr Area centred(int width, int height, Area const& in) {
    return {in.x + (in.width - width) / 2, in.y + (in.height - height) / 2, width, height};
}

/// @return the largest area of the show's shape, 4:3, in the middle of another; of one pixel at least
constexpr Area fitted(Area const& in) {
    int const width = std::max(1, std::min(in.width, in.height * 4 / 3));
    int const height = std::max(1, std::min(in.height, in.width * 3 / 4));
    return centred(width, height, in);
}

/// @return what two areas share; of no width or height where they do not meet
constexpr Area shared(Area const& a, Area const& b) {
    int const x = std::max(a.x, b.x);
    int const y = std::max(a.y, b.y);
    return {x, y, std::max(0, std::min(a.x + a.width, b.x + b.width) - x),
            std::max(0, std::min(a.y + a.height, b.y + b.height) - y)};
}
