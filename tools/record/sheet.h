// SPDX-License-Identifier: MIT
#pragma once

#include "tools/files/png.h"

#include <SFML/Graphics/Image.hpp>
#include <span>
#include <string>

/// One picture of a contact sheet.
struct SheetCell {
    sf::Image picture;
    std::string label;
};

/// The widest picture that goes onto a sheet unscaled, pixels.
constexpr unsigned int widest_cell = 320;

/// Shrinks a picture for a sheet: averages blocks of n x n pixels, with the smallest n that makes it no wider than the
/// widest cell. Incomplete blocks at the right and lower edge are dropped.
sf::Image shrink_for_sheet(sf::Image const& picture);

/// The size of a sheet of pictures.
/// @param count    of them, above 0
/// @param columns  pictures per row, above 0
/// @param picture  size of each before it is shrunk, pixels, above 0
PictureSize sheet_size(std::size_t count, unsigned int columns, sf::Vector2u picture);

/// Lays pictures out in rows on grey, in order, each with its label below.
/// @param cells    at least one, all of one size; the sheet must not be larger than pictures may be
/// @param columns  pictures per row, above 0; fewer pictures make a narrower sheet
sf::Image make_sheet(std::span<SheetCell const> cells, unsigned int columns);
