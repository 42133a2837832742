// SPDX-License-Identifier: MIT
#pragma once

#include <SFML/Graphics/Image.hpp>
#include <string>

/// Captions for pictures in a small bitmap font of printable ASCII; any other character becomes a space.

/// From the top of a capital to the bottom of a descender, dots.
constexpr unsigned int text_height = 9;

/// Writes a line of text in black; what does not fit is cut off.
/// @param left, top  upper left corner of the line, pixels
/// @param dot        width and height of a dot, pixels
void write_text(sf::Image& image, unsigned int left, unsigned int top, unsigned int dot, std::string const& text);

/// @return width of the text, dots
unsigned int text_width(std::string const& text);
