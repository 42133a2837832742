#pragma once

#include <SFML/Graphics/Image.hpp>
#include <string>

/// Captions of pictures in a small bitmap font of printable ASCII; any other character becomes a blank.

/// From the top of a capital down to what hangs below the line, dots.
constexpr unsigned int text_height = 9;

/// Writes a line of text in black. What does not fit is cut off.
/// @param left, top  upper left corner of the line, pixels
/// @param dot        pixels a dot is wide and high
void write_text(sf::Image& image, unsigned int left, unsigned int top, unsigned int dot, std::string const& text);

/// @return how wide the text becomes, dots
unsigned int text_width(std::string const& text);
