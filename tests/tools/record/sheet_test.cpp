// SPDX-License-Identifier: MIT
#include "tools/record/sheet.h"

#include "tests/support/images.h"
#include "tools/lettering/lettering.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

sf::Color const grey(128, 128, 128);

} // namespace

TEST(Sheet, PicturesUpToTheWidestCellStayAsTheyAre) {
    sf::Image picture = plain_image(widest_cell, 3, sf::Color::White);
    picture.setPixel(7, 1, sf::Color::Black);
    sf::Image const cell = shrink_for_sheet(picture);
    EXPECT_EQ(cell.getSize(), picture.getSize());
    EXPECT_EQ(dots(cell), dots(picture));
}

TEST(Sheet, LargerPicturesAreAveragedOverBlocks) {
    sf::Image picture = plain_image(2 * widest_cell, 5, sf::Color::White);
    picture.setPixel(0, 0, sf::Color::Black);
    picture.setPixel(2, 2, sf::Color::Black);
    picture.setPixel(3, 3, sf::Color::Black);
    sf::Image const cell = shrink_for_sheet(picture);
    EXPECT_EQ(cell.getSize(), sf::Vector2u(widest_cell, 2)) << "the odd row is dropped";
    EXPECT_EQ(cell.getPixel(0, 0), sf::Color(191, 191, 191)) << "one pixel of four is black";
    EXPECT_EQ(cell.getPixel(1, 1), grey);
    EXPECT_EQ(cell.getPixel(2, 0), sf::Color::White);
    EXPECT_EQ(shrink_for_sheet(plain_image(1024, 768, sf::Color::White)).getSize(), sf::Vector2u(256, 192));
}

TEST(Sheet, LaysPicturesOutInRowsWithTheirLabels) {
    sf::Color const colors[] = {sf::Color::Red, sf::Color::Green, sf::Color::Blue};
    std::vector<SheetCell> cells;
    for (sf::Color const& color : colors) cells.push_back({plain_image(40, 30, color), "x"});
    sf::Image const sheet = make_sheet(cells, 2);
    EXPECT_EQ(sheet.getSize(), sf::Vector2u(2 * 44 + 4, 2 * 56 + 4));
    EXPECT_EQ(sheet.getPixel(4, 4), colors[0]);
    EXPECT_EQ(sheet.getPixel(43, 33), colors[0]);
    EXPECT_EQ(sheet.getPixel(44, 4), grey);
    EXPECT_EQ(sheet.getPixel(48, 4), colors[1]);
    EXPECT_EQ(sheet.getPixel(4, 60), colors[2]);
    EXPECT_EQ(sheet.getPixel(48, 60), grey) << "nothing there";

    std::vector<SheetCell> unlabelled = cells;
    for (SheetCell& cell : unlabelled) cell.label.clear();
    EXPECT_EQ(black_pixels(make_sheet(unlabelled, 2)), 0);
    sf::Image letter = plain_image(5, 7, sf::Color::White);
    write_text(letter, 0, 0, 1, "x");
    EXPECT_EQ(black_pixels(sheet), 3 * 4 * black_pixels(letter)) << "three labels, two pixels a dot";
}

TEST(Sheet, IsNoWiderThanItsPictures) {
    std::vector<SheetCell> const cells = {{plain_image(40, 30, sf::Color::Red), ""}};
    EXPECT_EQ(make_sheet(cells, 100).getSize().x, 48u);
}

TEST(Sheet, TellsItsSizeInAdvance) {
    struct {
        unsigned int count, columns;
        sf::Vector2u picture;
    } const rows[] = {{1, 5, {40, 30}}, {7, 3, {640, 480}}, {3, 3, {1000, 7}}, {2, 1, {320, 1}}};
    for (auto const& [count, columns, picture] : rows) {
        SheetCell const cell{shrink_for_sheet(plain_image(picture.x, picture.y)), "x"};
        sf::Vector2u const made = make_sheet(std::vector<SheetCell>(count, cell), columns).getSize();
        PictureSize const told = sheet_size(count, columns, picture);
        EXPECT_EQ(told.width, made.x);
        EXPECT_EQ(told.height, made.y);
    }
    PictureSize const huge = sheet_size(2000000000, 1, {320, 8192});
    EXPECT_EQ(huge.height, 4 + 2000000000u * (8192ull + 4 + 18 + 4));
}
