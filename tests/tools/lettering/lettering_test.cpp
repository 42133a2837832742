// SPDX-License-Identifier: MIT
#include "tools/lettering/lettering.h"

#include "tests/support/images.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

std::vector<std::string> drawn(std::string const& text) {
    sf::Image image = plain_image(12, text_height);
    write_text(image, 0, 0, 1, text);
    return dots(image);
}

} // namespace

TEST(Lettering, DrawsItsLetters) {
    std::vector<std::string> const expected = {
        "###.........", //
        "#..#........", //
        "#..#..#..#..", //
        "###...#..#..", //
        "#..#..#..#..", //
        "#..#..#..#..", //
        "###....###..", //
        ".........#..", //
        ".......##...", //
    };
    EXPECT_EQ(drawn("By"), expected);
}

TEST(Lettering, EveryPrintableCharacterFitsAndDiffersFromTheOthers) {
    for (char a = ' '; a <= '~'; ++a) {
        std::string const letter(1, a);
        for (char b = ' '; b < a; ++b) {
            bool const same = a == '|' && b == 'l'; // the only identical pair of the font
            EXPECT_EQ(drawn(letter) == drawn(std::string(1, b)), same) << a << " and " << b;
        }
        sf::Image tight = plain_image(text_width(letter), text_height);
        sf::Image wide = plain_image(20, 20);
        write_text(tight, 0, 0, 1, letter);
        write_text(wide, 0, 0, 1, letter);
        EXPECT_EQ(black_pixels(tight), black_pixels(wide)) << a << " is wider than text_width says";
    }
}

TEST(Lettering, WritesABlankForWhatIsNotPrintable) {
    for (char const c : {'\n', '\t', '\x7f', '\xe4'}) {
        std::string const text = {'a', c, 'b'};
        EXPECT_EQ(drawn(text), drawn("a b"));
        EXPECT_EQ(text_width(text), text_width("a b"));
    }
}

TEST(Lettering, GrowsWithTheDotAndIsCutOffAtTheEdge) {
    sf::Image small = plain_image(5, 9);
    write_text(small, 0, 0, 1, "B");
    sf::Image large = plain_image(10, 18);
    write_text(large, 0, 0, 2, "B");
    EXPECT_EQ(black_pixels(large), 4 * black_pixels(small));
    sf::Image cut = plain_image(5, 7);
    write_text(cut, 3, 4, 1, "BBBB");
    sf::Image expected = plain_image(5, 7);
    expected.copy(small, 3, 4, sf::IntRect(0, 0, 2, 3));
    EXPECT_EQ(dots(cut), dots(expected));
    EXPECT_EQ(text_width("BB"), 2 * text_width("B"));
    EXPECT_EQ(text_width(""), 0u);
}
