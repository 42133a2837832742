// SPDX-License-Identifier: MIT
#include "tools/record/sheet.h"

#include "tools/lettering/lettering.h"

#include <algorithm>

namespace {

constexpr unsigned int gap = 4; // pixels around each picture
constexpr unsigned int most_dot = 2;

/// The side of the blocks that become one pixel.
unsigned int block_of(sf::Vector2u size) { return std::max((size.x + widest_cell - 1) / widest_cell, 1u); }

sf::Vector2u shrunk(sf::Vector2u size) {
    unsigned int const n = block_of(size);
    return {size.x / n, std::max(size.y / n, 1u)};
}

/// From one picture to the next.
sf::Vector2u step_of(sf::Vector2u cell) { return {cell.x + gap, cell.y + gap + text_height * most_dot + gap}; }

/// The size of a sheet of pictures as they are.
PictureSize size_of(std::size_t count, unsigned int columns, sf::Vector2u cell) {
    sf::Vector2u const step = step_of(cell);
    std::uint64_t const in_row = std::min<std::uint64_t>(columns, count);
    std::uint64_t const rows = (count + in_row - 1) / in_row;
    return {in_row * step.x + gap, rows * step.y + gap};
}

sf::Color average(sf::Image const& picture, unsigned int left, unsigned int top, unsigned int n) {
    unsigned int sum[3] = {};
    for (unsigned int y = top; y < top + n; ++y) {
        for (unsigned int x = left; x < left + n; ++x) {
            sf::Color const color = picture.getPixel(x, y);
            sum[0] += color.r;
            sum[1] += color.g;
            sum[2] += color.b;
        }
    }
    auto const mean = [n](unsigned int total) { return static_cast<sf::Uint8>((total + n * n / 2) / (n * n)); };
    return {mean(sum[0]), mean(sum[1]), mean(sum[2])};
}

// The largest lettering that fits the label under its picture.
unsigned int dot_for(std::string const& label, unsigned int width) {
    return std::clamp(width / std::max(text_width(label), 1u), 1u, most_dot);
}

} // namespace

sf::Image shrink_for_sheet(sf::Image const& picture) {
    sf::Vector2u const size = picture.getSize();
    unsigned int const n = block_of(size);
    sf::Image small;
    small.create(shrunk(size).x, shrunk(size).y);
    if (n == 1 || size.y < n) {
        small.copy(picture, 0, 0);
        return small;
    }
    for (unsigned int y = 0; y < size.y / n; ++y) {
        for (unsigned int x = 0; x < size.x / n; ++x) small.setPixel(x, y, average(picture, x * n, y * n, n));
    }
    return small;
}

PictureSize sheet_size(std::size_t count, unsigned int columns, sf::Vector2u picture) {
    return size_of(count, columns, shrunk(picture));
}

sf::Image make_sheet(std::span<SheetCell const> cells, unsigned int columns) {
    auto const count = static_cast<unsigned int>(cells.size());
    columns = std::min(columns, count);
    sf::Vector2u const picture = cells[0].picture.getSize();
    sf::Vector2u const step = step_of(picture);
    PictureSize const size = size_of(count, columns, picture);

    sf::Image sheet;
    sheet.create(static_cast<unsigned int>(size.width), static_cast<unsigned int>(size.height),
                 sf::Color(128, 128, 128));
    for (unsigned int i = 0; i < count; ++i) {
        unsigned int const left = gap + i % columns * step.x;
        unsigned int const top = gap + i / columns * step.y;
        sheet.copy(cells[i].picture, left, top);
        std::string const& label = cells[i].label;
        unsigned int const dot = dot_for(label, picture.x);
        unsigned int const room = picture.x - std::min(picture.x, dot * text_width(label));
        write_text(sheet, left + room / 2, top + picture.y + gap, dot, label);
    }
    return sheet;
}
