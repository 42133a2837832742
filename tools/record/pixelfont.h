#pragma once

#include <SFML/Graphics/Image.hpp>
#include <string>

/// The recorder's own lettering, five by seven dots: capitals, digits, point and blank.
constexpr unsigned int glyph_width = 5;
constexpr unsigned int glyph_height = 7;
constexpr unsigned int glyph_advance = 6; ///< from one glyph to the next, dots

/// Writes a line of text; small letters become capitals, unknown characters blanks. What does not fit is cut off.
/// @param left, top  corner of the first glyph, pixels
/// @param dot        pixels a dot is wide and high
void write_text(sf::Image& image, unsigned int left, unsigned int top, unsigned int dot, std::string const& text);

/// @return how wide the text becomes, dots
unsigned int text_width(std::string const& text);
