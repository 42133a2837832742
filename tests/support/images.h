// SPDX-License-Identifier: MIT
#pragma once

#include <SFML/Graphics/Image.hpp>
#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

/// Pictures, made and compared.

inline sf::Image plain_image(unsigned int width, unsigned int height, sf::Color color = sf::Color::White) {
    sf::Image image;
    image.create(width, height, color);
    return image;
}

/// The picture as rows of '#' for black and '.' for the rest.
inline std::vector<std::string> dots(sf::Image const& image) {
    std::vector<std::string> rows;
    for (unsigned int y = 0; y < image.getSize().y; ++y) {
        std::string& row = rows.emplace_back();
        for (unsigned int x = 0; x < image.getSize().x; ++x) {
            row += image.getPixel(x, y) == sf::Color::Black ? '#' : '.';
        }
    }
    return rows;
}

inline long black_pixels(sf::Image const& image) {
    long count = 0;
    for (std::string const& row : dots(image)) count += std::count(row.begin(), row.end(), '#');
    return count;
}

/// How different two pictures are: the number of pixels of which a channel differs by more than the tolerance; all
/// pixels where the sizes differ.
///
/// Counted, never averaged: a software renderer draws the same pixels on every run, whatever its threads and vector
/// width; another version of it changes a few pixels along edges, and changes them completely. An average cannot tell
/// that from an object that is slightly too bright or a missing line; a count can. The tolerance only allows for the
/// rounding of averaged samples.
inline unsigned int differing_pixels(sf::Image const& a, sf::Image const& b, int tolerance = 16) {
    sf::Vector2u const size = a.getSize();
    if (size != b.getSize()) return std::max(size.x * size.y, b.getSize().x * b.getSize().y);
    unsigned int count = 0;
    for (unsigned int y = 0; y < size.y; ++y) {
        for (unsigned int x = 0; x < size.x; ++x) {
            sf::Color const p = a.getPixel(x, y);
            sf::Color const q = b.getPixel(x, y);
            int const most = std::max({std::abs(p.r - q.r), std::abs(p.g - q.g), std::abs(p.b - q.b)});
            if (most > tolerance) ++count;
        }
    }
    return count;
}

/// Share of pixels that are black or nearly so, percent.
inline double black_share(sf::Image const& image) {
    sf::Vector2u const size = image.getSize();
    double const all = size.x * size.y;
    return 100 * (all - differing_pixels(image, plain_image(size.x, size.y, sf::Color::Black))) / all;
}
