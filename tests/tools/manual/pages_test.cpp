// SPDX-License-Identifier: MIT
#include "tests/support/command.h"
#include "tools/manual/pages.h"

#include <gmock/gmock.h>

using testing::HasSubstr;

namespace {

std::vector<HelpSection> const help = {
    {"", "", {{{"-h", "--help"}, "", "Show this: 'help' [now]"}, {{"--size"}, "WxH", ".5 or a\\b"}}},
    {"join", "Put files in one", {{{"-o"}, "OUT", "The file"}}},
};

TEST(ManualPage, ListsTheOptions) {
    EXPECT_EQ(manual_options(help), ".Bl -tag -width Ds\n"
                                    ".It Fl h , Fl -help\n"
                                    "Show this: \\&'help' [now]\n"
                                    ".It Fl -size Ar WxH\n"
                                    "\\&.5 or a\\eb\n"
                                    ".El\n"
                                    ".Ss join\n"
                                    "Put files in one.\n"
                                    ".Bl -tag -width Ds\n"
                                    ".It Fl o Ar OUT\n"
                                    "The file\n"
                                    ".El\n");
}

/// What bash offers for a command line, one word a line.
std::string offered(std::string const& words, int current) {
    support::Outcome const outcome = support::run({"bash", "-c",
                                                   bash_completion("my-thing", help) + "COMP_WORDS=(" + words +
                                                       ")\nCOMP_CWORD=" + std::to_string(current) +
                                                       "\n_my_thing\nprintf '%s\\n' \"${COMPREPLY[@]}\"\n"});
    EXPECT_EQ(outcome.error, "");
    return outcome.output;
}

TEST(BashCompletion, OffersOptionsAndSubcommands) {
    EXPECT_EQ(offered("my-thing -", 1), "-h\n--help\n--size\n");
    EXPECT_EQ(offered("my-thing j", 1), "join\n");
    EXPECT_EQ(offered("my-thing join -", 2), "-o\n");
}

TEST(ZshCompletion, EscapesWhatMeansSomethingThere) {
    std::string const script = zsh_completion("my-thing", help);
    EXPECT_THAT(script, HasSubstr("#compdef my-thing\n"));
    EXPECT_THAT(script, HasSubstr("'--help[Show this\\: '\\''help'\\'' \\[now\\]]'"));
    EXPECT_THAT(script, HasSubstr("'--size[.5 or a\\\\b]:WxH:_files'"));
}

TEST(FishCompletion, HasALineForEachOption) {
    std::string const script = fish_completion("my-thing", help);
    EXPECT_THAT(script, HasSubstr("complete -c my-thing -s h -l help -d "));
    EXPECT_THAT(script, HasSubstr("complete -c my-thing -l size -r -d '.5 or a\\b'\n"));
    EXPECT_THAT(script,
                HasSubstr("complete -c my-thing -n '__fish_seen_subcommand_from join' -s o -r -d 'The file'\n"));
}

} // namespace
