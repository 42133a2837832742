// SPDX-License-Identifier: MIT
#include "tools/lettering/lettering.h"

#include <algorithm>
#include <stb/stb_easy_font.h>
#include <vector>

namespace {

/// A rectangle of a letter as the font draws it: its corners clockwise from the upper left one, dots.
struct Quad {
    struct {
        float x, y, z;
        unsigned char color[4];
    } corners[4];
};

/// The font has no other characters, and would read them outside its table.
std::string printable(std::string text) {
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c < ' ' || c > '~'; }, ' ');
    return text;
}

std::vector<Quad> quads_of(std::string const& text) {
    std::string letters = printable(text);
    constexpr std::size_t most_a_letter = 16;
    std::vector<Quad> quads(letters.size() * most_a_letter);
    int const count =
        stb_easy_font_print(0, 0, letters.data(), nullptr, quads.data(), static_cast<int>(quads.size() * sizeof(Quad)));
    quads.resize(static_cast<std::size_t>(count));
    return quads;
}

} // namespace

void write_text(sf::Image& image, unsigned int left, unsigned int top, unsigned int dot, std::string const& text) {
    auto const pixels = [dot](float dots) { return dot * static_cast<unsigned int>(dots); };
    for (Quad const& quad : quads_of(text)) {
        auto const& [x0, y0, z0, color0] = quad.corners[0];
        auto const& [x1, y1, z1, color1] = quad.corners[2];
        unsigned int const right = std::min(left + pixels(x1), image.getSize().x);
        unsigned int const bottom = std::min(top + pixels(y1), image.getSize().y);
        for (unsigned int y = top + pixels(y0); y < bottom; ++y) {
            for (unsigned int x = left + pixels(x0); x < right; ++x) image.setPixel(x, y, sf::Color::Black);
        }
    }
}

unsigned int text_width(std::string const& text) {
    return static_cast<unsigned int>(stb_easy_font_width(printable(text).data()));
}
