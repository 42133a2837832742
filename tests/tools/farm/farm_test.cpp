// SPDX-License-Identifier: MIT
// Farms as they should go: what they join is what the recorder makes in one go.

#include "tests/tools/farm/farmland.h"

#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>

namespace fs = std::filesystem;
using support::Outcome;
using support::read_all;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

TEST_F(FarmTest, JoinsTheFilmThatTheRecorderMakesInOneGo) {
    Record("whole.mkv", "300:540");
    Outcome const outcome = Farm("--out film.mkv --local --frames 300:540 --chunk 30");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, In("film.mkv") + "\n");
    EXPECT_EQ(outcome.error, "");
    ExpectSame("film.mkv", "whole.mkv");
    EXPECT_THAT(Drawn(), ElementsAre(300, 330, 360, 390, 420, 450, 480, 510));
    EXPECT_EQ(std::ranges::count(Pictures("film.mkv"), '\n'), 240 + std::ranges::count(Pictures("film.mkv"), '#') - 1)
        << "the list has a line for each frame, and a head";
}

TEST_F(FarmTest, DrawsNothingTwice) {
    ASSERT_EQ(Farm(std::string("--local --out film.mkv ") + small_film).status, 0);
    EXPECT_THAT(Drawn(), ElementsAre(300, 320, 340, 360));
    fs::remove(In("film.mkv"));
    ASSERT_EQ(Farm(std::string("--local --out film.mkv ") + small_film).status, 0);
    EXPECT_THAT(Drawn(), IsEmpty());
    Record("whole.mkv");
    ExpectSame("film.mkv", "whole.mkv");
}

TEST_F(FarmTest, RefusesWhatItCannotDo) {
    std::string const film = "--out film.mkv --local ";
    // clang-format off
    std::pair<std::string, std::string> const cases[] = {
        {"--local",                    "where is the film to go? See --out"},
        {"--out",                      "--out requires a value; see --help"},
        {film + "--chunk 0",           "--chunk: '0' is not a number of frames"},
        {film + "--workers x",         "--workers: 'x' is not a number above 0"},
        {film + "--film x.mkv",        "the film is named by --out"},
        {film + "--recorder /nothing", "there is no recorder at /nothing; ./play --record --help builds it"},
        {film + "--chunk 5",           "more than 1000 chunks are too many; --chunk 11 makes fewer"},
        {film + "--frames 0:9 --folder calls/x", "cannot write into " + In("calls/x")},
    };
    // clang-format on
    for (auto const& [arguments, line] : cases) {
        SCOPED_TRACE(arguments);
        Outcome const outcome = Farm(arguments);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.error, "farm: " + line + "\n");
        EXPECT_EQ(outcome.output, "");
    }
    Outcome const outcome = Farm(film + "--scene finale");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.error, testing::StartsWith("hardsilence-record: no scene is called 'finale'; there are "));
    EXPECT_EQ(std::ranges::count(outcome.error, '\n'), 1);
    EXPECT_FALSE(fs::exists(In("film.mkv.farm")) || fs::exists(In("film.mkv")));
}

TEST_F(FarmTest, TellsHowItIsUsed) {
    Outcome const outcome = Farm("--help");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.error, "");
    for (char const* const option :
         {"--out FILE", "--folder DIR", "--chunk FRAMES", "--slurm", "--sshlogin HOSTS", "--local", "--workers N"}) {
        EXPECT_THAT(outcome.output, HasSubstr(std::string("\n    ") + option + " "));
    }
}
