// SPDX-License-Identifier: MIT
// A show of one's own on the engine's programs.

#include "tests/support/command.h"
#include "tests/support/images.h"
#include "tests/support/temp.h"

#include <SFML/Graphics/Image.hpp>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::HasSubstr;

namespace {

support::Outcome record(std::string const& arguments, support::TempFolder const& folder) {
    return support::run_shell("'" OWN_SHOW "/own-show-record' " + arguments, {.folder = folder.Path("")});
}

} // namespace

TEST(OwnShow, HasItsTwoScenes) {
    support::TempFolder const folder;
    EXPECT_EQ(record("--list", folder).output, "name       first beat  beats  title\n"
                                               "turning             0      8  Turning Star\n"
                                               "falling             8      8  Falling Star\n");
}

TEST(OwnShow, IsRecorded) {
    support::TempFolder const folder;
    support::Outcome const outcome = record("--beats 2.5,5,10.5,12 --size 160x120 --out .", folder);
    ASSERT_EQ(outcome.status, 0) << outcome.error;
    sf::Image last = plain_image(160, 120);
    for (char const* const beat : {"002.500", "005.000", "010.500", "012.000"}) {
        sf::Image picture;
        ASSERT_TRUE(picture.loadFromFile(folder.Path(std::string("beat_") + beat + ".png")));
        EXPECT_GT(differing_pixels(picture, last), 400u) << "a star that turns, is inverted and falls apart";
        last = picture;
    }
}

TEST(OwnShow, HasATimelineWithItsMusic) {
    support::TempFolder const folder;
    ASSERT_EQ(record("--timeline own.svg", folder).status, 0);
    std::string const svg = support::read_all(folder.Path("own.svg"));
    EXPECT_THAT(svg, HasSubstr("2 scenes, 16 beats"));
    EXPECT_THAT(svg, HasSubstr("BrokenModel star, beats 8 to 16"));
    EXPECT_THAT(svg, HasSubstr("break 1, beat 10<"));
    EXPECT_THAT(svg, HasSubstr("class=\"mean\""));
}

TEST(OwnShow, TakesSixtyLinesAtMost) {
    std::ifstream file(HARDSILENCE_SOURCE_DIR "/examples/own-show/show.cpp");
    int lines = 0;
    for (std::string line; std::getline(file, line);) lines += !line.starts_with("// SPDX-");
    EXPECT_GT(lines, 20);
    EXPECT_LE(lines, 60);
}
