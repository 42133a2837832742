// SPDX-License-Identifier: MIT
#pragma once

#include <SFML/Graphics/Image.hpp>
#include <cstdint>
#include <string>

/// The largest picture that the tools make.
inline constexpr std::uint64_t largest_picture_side = 65535;                 ///< pixels
inline constexpr std::uint64_t largest_picture = std::uint64_t{8192} * 8192; ///< pixels in all

/// Pixels of a picture that is yet to be made; 64 bits, so that no sum of many pictures wraps.
struct PictureSize {
    std::uint64_t width = 0;
    std::uint64_t height = 0;
};

/// @param what  the picture, in the sentence
/// @return "", or a sentence that tells why nobody may make a picture of this size
std::string refuse_size(char const* what, PictureSize const& size);

/// Encodes a picture as PNG: 8 bits for each of red, green and blue; opacity is left out. The same picture gives the
/// same bytes with the same libpng and zlib.
/// @return the bytes of the file; "" if the picture has no pixels, or more than largest_picture
std::string encode_png(sf::Image const& picture);

/// Whether a path ends in ".png", in any case.
bool is_png_name(std::string const& path);

/// Writes it as a file.
/// @return "", or a sentence that tells why it is not written, see write_file
std::string write_png(std::string const& path, sf::Image const& picture);
