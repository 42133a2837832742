// SPDX-License-Identifier: MIT
#include "effekt/plasmatexture.h"

#include "kore/perspective.h"

#include <cmath>

namespace effect {

namespace {

/// Maps a wave from [-1, 1] to 1 to 255.
unsigned char wave_byte(double wave) { return static_cast<unsigned char>(static_cast<int>(wave * 127 + 128)); }

/// Start of a window along one side of a table.
int window_start(double wave, int half) { return static_cast<int>(wave * (half - 1)) + half; }

} // namespace

bool PlasmaTexture::Init(int w, int h) {
    if (!Texture::Init(w, h)) return false;
    std::size_t const entries = 4 * static_cast<std::size_t>(size);
    waves = std::make_unique<unsigned char[]>(entries);
    InitPlasma();
    return true;
}

void PlasmaTexture::InitPlasma() {
    int const table_width = 2 * width;
    int const table_height = 2 * height;
    std::size_t i = 0;
    for (int y = 0; y < table_height; ++y) {
        for (int x = 0; x < table_width; ++x, ++i) {
            int first = wave_byte(std::sin(std::hypot(x, height - y) / 48));
            first = 0; // Deliberate: the first wave is switched off; the picture is made of the rings alone
            int const dx = x - table_width / 2;
            int const dy = y - table_height / 2;
            int const second = wave_byte(std::sin(std::sqrt(static_cast<double>(dy * dy + dx * dx)) / 8));
            waves[i] = static_cast<unsigned char>(first + second);
        }
    }
}

void PlasmaTexture::UpdatePalette(double t) {
    for (int i = 0; i < 256; ++i) palette[i][0] = wave_byte(std::sin(t / 133 + i * kore::PI / 64));
}

void PlasmaTexture::RenderTexture(unsigned int t) {
    int const hw = width / 2;
    int const hh = height / 2;
    unsigned int const sixteenth = t / 16;
    double const a = sixteenth;
    int const x1 = window_start(std::sin(a / 128), hw);
    int const x2 = window_start(std::cos(a / -74), hw);
    int const y1 = window_start(std::cos(a / -113), hh);
    int const y2 = window_start(std::sin(a / 33), hh);
    auto const row = static_cast<std::size_t>(width);
    std::size_t o1 = row * static_cast<std::size_t>(y1) * 2 + static_cast<std::size_t>(x1);
    std::size_t o2 = row * static_cast<std::size_t>(y2) * 2 + static_cast<std::size_t>(x2);

    UpdatePalette(t);
    unsigned char* pixel = pixels.get();
    for (int y = 0; y < height; ++y) {
        for (std::size_t x = 0; x < row; ++x, ++o1, ++o2) {
            *pixel++ = palette[static_cast<unsigned char>(waves[o1] + waves[o2])][0];
        }
        // The same column of the next table row: tables are twice as wide as the picture.
        o1 += row;
        o2 += row;
    }
}

} // namespace effect
