// SPDX-License-Identifier: MIT
#include "tests/effekt/plasma.h"

#include <cmath>

namespace effect_test {

namespace {

int byte_of(double wave) { return static_cast<int>(std::trunc(wave * 127 + 128)); }

/// The rings: a wave of the distance from the middle of a plane twice the size of the picture.
int ring(int x, int y, int width, int height) {
    double const dx = x - width;
    double const dy = y - height;
    return byte_of(std::sin(std::sqrt(dx * dx + dy * dy) / 8));
}

} // namespace

int palette_level(double t, int index) { return byte_of(std::sin(t / 133 + index * engine_pi / 64)); }

std::vector<unsigned char> plasma(int width, int height, unsigned int t) {
    double const a = std::floor(t / 16.0);
    int const half_width = width / 2;
    int const half_height = height / 2;
    auto const start = [](double wave, int half) { return static_cast<int>(std::trunc(wave * (half - 1))) + half; };
    int const x1 = start(std::sin(a / 128), half_width);
    int const x2 = start(std::cos(a / 74), half_width);
    int const y1 = start(std::cos(a / 113), half_height);
    int const y2 = start(std::sin(a / 33), half_height);

    std::vector<unsigned char> picture;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            int const sum = ring(x1 + x, y1 + y, width, height) + ring(x2 + x, y2 + y, width, height);
            picture.push_back(static_cast<unsigned char>(palette_level(t, sum % 256)));
        }
    }
    return picture;
}

} // namespace effect_test
