#pragma once

#include <SFML/Graphics/Image.hpp>
#include <span>
#include <string>

/// One picture of a contact sheet.
struct SheetCell {
    sf::Image picture;
    std::string label;
};

/// The widest picture that goes onto a sheet as it is, pixels.
constexpr unsigned int widest_cell = 320;

/// Makes a picture fit for a sheet: the average of blocks of n x n pixels, with the smallest n that brings it down to
/// the widest cell. What is left over at the right and lower edge is dropped.
sf::Image shrink_for_sheet(sf::Image const& picture);

/// Lays pictures out in rows on grey, each with its label below, in their order.
/// @param cells    at least one, all of one size
/// @param columns  pictures in a row, above 0; fewer pictures make a narrower sheet
sf::Image make_sheet(std::span<SheetCell const> cells, unsigned int columns);
