// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/area.h"
#include "tools/offscreen/framebuffer.h"
#include "tools/record/options.h"

#include <SFML/Graphics/Image.hpp>
#include <cstdint>
#include <string>
#include <vector>

/// How a picture is to be drawn.
struct PictureShape {
    unsigned int width = 0; ///< pixels
    unsigned int height = 0;
    unsigned int samples = 4;     ///< per pixel; 0 or 1 for a single one
    unsigned int supersample = 1; ///< each pixel is the average of a square of so many by so many
    bool stretch = false;         ///< the show fills the picture; else it is 4:3 in the middle, with black beside it

    /// The part of the picture that the show fills.
    Area Place() const;

    /// Bytes of a picture: 3 a pixel.
    std::size_t Bytes() const { return std::size_t{3} * width * height; }
};

PictureShape shape_of(RecordOptions const& options);

/// A picture that the show is drawn into, on the current OpenGL context, and read out of as bare pixels.
class Canvas {
public:
    /// @return "", or a line that tells what the driver cannot do
    std::string Create(PictureShape const& wanted);

    /// Reads the picture as drawn so far.
    /// @param pixels  height x width x 3 bytes, upper row first; black beside the show's place is left as it is
    void Read(std::uint8_t* pixels);

    /// @return the same picture, opaque
    sf::Image Image();

private:
    PictureShape shape;
    Framebuffer framebuffer;
    std::vector<std::uint8_t> rows; ///< as the driver gives them
};

/// Averages squares of pixels; halves are rounded up.
/// @param from  4 bytes a pixel; the square begins here
/// @param row   bytes from one row to the next
/// @param n     pixels along a side of the square
/// @param to    3 bytes
void average_square(std::uint8_t const* from, std::size_t row, unsigned int n, std::uint8_t* to);
