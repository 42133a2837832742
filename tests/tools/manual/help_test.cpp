// SPDX-License-Identifier: MIT
#include "tools/manual/help.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

TEST(Help, IsTakenApartIntoNamesValueAndText) {
    auto const help = parse_help("Plays.\n"
                                 "Usage: thing [OPTIONS]\n"
                                 "\n"
                                 "Options:\n"
                                 "  -h,--help             Show this help\n"
                                 "  -o OUT.png (required) The picture,\n"
                                 "                        in colour\n"
                                 "    -width X    Resolution: 4:3\n"
                                 "  FILE ... (required)   Mesh files\n"
                                 "  --raw -               Bare pixels\n"
                                 "\n"
                                 "The show is stepped at  60 frames a second.\n");
    ASSERT_EQ(help.size(), 1u);
    auto const& entries = help[0].entries;
    ASSERT_EQ(entries.size(), 5u);
    EXPECT_THAT(entries[0].names, ElementsAre("-h", "--help"));
    EXPECT_EQ(entries[0].value, "");
    EXPECT_EQ(entries[0].text, "Show this help");
    EXPECT_THAT(entries[1].names, ElementsAre("-o"));
    EXPECT_EQ(entries[1].value, "OUT.png");
    EXPECT_EQ(entries[1].text, "The picture, in colour");
    EXPECT_THAT(entries[2].names, ElementsAre("-width"));
    EXPECT_EQ(entries[2].value, "X");
    EXPECT_THAT(entries[3].names, IsEmpty());
    EXPECT_EQ(entries[3].value, "FILE ...");
    EXPECT_EQ(entries[3].text, "Mesh files");
    EXPECT_THAT(entries[4].names, ElementsAre("--raw"));
    EXPECT_EQ(entries[4].value, "-");
}

TEST(Help, HasSectionsForSubcommands) {
    auto const help = parse_help("Options:\n"
                                 "  --version             Show the version\n"
                                 "\n"
                                 "Subcommands:\n"
                                 "join\n"
                                 "  Put files in one\n"
                                 "  Options:\n"
                                 "    -o OUT              The file\n"
                                 "sit-still\n"
                                 "  Do nothing\n");
    ASSERT_EQ(help.size(), 3u);
    EXPECT_EQ(help[1].command, "join");
    EXPECT_EQ(help[1].text, "Put files in one");
    EXPECT_EQ(help[1].entries.size(), 1u);
    EXPECT_EQ(help[2].command, "sit-still");
    EXPECT_THAT(help[2].entries, IsEmpty());
}

TEST(Help, OfNothingIsNothing) { EXPECT_THAT(parse_help("Plays.\n"), IsEmpty()); }

} // namespace
