// SPDX-License-Identifier: MIT
#include "tools/film/canvas.h"

#include <algorithm>
#include <cstring>

namespace {

void copy_row(std::uint8_t const* from, std::size_t width, std::uint8_t* to) {
    // Four bytes at a time are seven times as quick as three; the next pixel overwrites the one too many.
    for (std::size_t x = 0; x + 1 < width; ++x, from += 4, to += 3) std::memcpy(to, from, 4);
    std::memcpy(to, from, 3);
}

std::string too_much(PictureShape const& shape, unsigned int width, unsigned int height) {
    return "this driver cannot draw " + std::to_string(width) + "x" + std::to_string(height) + " pixels with " +
           std::to_string(shape.samples) + " samples; it goes up to " + std::to_string(Framebuffer::LargestSide()) +
           " pixels and " + std::to_string(Framebuffer::MostSamples()) + " samples";
}

} // namespace

Area PictureShape::Place() const {
    Area const all{0, 0, static_cast<int>(width), static_cast<int>(height)};
    return stretch ? all : fitted(all);
}

PictureShape shape_of(RecordOptions const& options) {
    return {options.width, options.height, options.samples, options.supersample, options.stretch};
}

std::string Canvas::Create(PictureShape const& wanted) {
    shape = wanted;
    Area const place = shape.Place();
    auto const width = static_cast<unsigned int>(place.width) * shape.supersample;
    auto const height = static_cast<unsigned int>(place.height) * shape.supersample;
    if (!framebuffer.Create(width, height, shape.samples)) return too_much(shape, width, height);
    rows.resize(std::size_t{4} * width * height);
    return "";
}

void Canvas::Read(std::uint8_t* pixels) {
    framebuffer.ReadRows(rows.data());
    Area const place = shape.Place();
    auto const width = static_cast<std::size_t>(place.width);
    auto const height = static_cast<std::size_t>(place.height);
    std::size_t const n = shape.supersample;
    std::size_t const row = 4 * width * n;
    std::uint8_t* to =
        pixels + 3 * (static_cast<std::size_t>(place.y) * shape.width + static_cast<std::size_t>(place.x));
    for (std::size_t y = height; y-- > 0; to += std::size_t{3} * shape.width) {
        std::uint8_t const* const from = &rows[y * n * row];
        if (n == 1)
            copy_row(from, width, to);
        else
            for (std::size_t x = 0; x < width; ++x)
                average_square(from + 4 * n * x, row, shape.supersample, to + 3 * x);
    }
}

sf::Image Canvas::Image() {
    std::vector<std::uint8_t> pixels(shape.Bytes());
    Read(pixels.data());
    std::vector<std::uint8_t> opaque(pixels.size() / 3 * 4, 255);
    for (std::size_t i = 0; i < pixels.size() / 3; ++i) std::copy_n(&pixels[3 * i], 3, &opaque[4 * i]);
    sf::Image image;
    image.create(shape.width, shape.height, opaque.data());
    return image;
}

void average_square(std::uint8_t const* from, std::size_t row, unsigned int n, std::uint8_t* to) {
    unsigned int sum[3] = {};
    for (unsigned int y = 0; y < n; ++y, from += row) {
        for (std::size_t x = 0; x < n; ++x) {
            for (std::size_t channel = 0; channel < 3; ++channel) sum[channel] += from[4 * x + channel];
        }
    }
    for (std::size_t channel = 0; channel < 3; ++channel) {
        to[channel] = static_cast<std::uint8_t>((sum[channel] + n * n / 2) / (n * n));
    }
}
