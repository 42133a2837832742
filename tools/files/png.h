#pragma once

#include <SFML/Graphics/Image.hpp>
#include <string>

/// Encodes a picture as PNG: 8 bits for each of red, green and blue; opacity is left out. The same picture gives the
/// same bytes with the same libpng and zlib.
/// @return the bytes of the file; "" if the picture has no pixels, or more than a million in a row or a column
std::string encode_png(sf::Image const& picture);

/// Whether a path ends in ".png", in any case.
bool is_png_name(std::string const& path);

/// Writes it as a file.
/// @return "", or a sentence that tells why it is not written, see write_file
std::string write_png(std::string const& path, sf::Image const& picture);
