// SPDX-License-Identifier: MIT
// Where chunks are drawn, and how they become films of other formats.

#include "tests/tools/farm/farmland.h"

#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>
#include <regex>

namespace fs = std::filesystem;
using support::Outcome;
using support::read_all;
using testing::HasSubstr;
using testing::Not;

namespace {

/// What of ffmpeg's list of frames tells their times.
std::string times(std::string const& list) {
    return std::regex_replace(list, std::regex(", *[0-9]+, [0-9a-f]{32}\n"), "\n");
}

/// What tells of the pictures themselves.
std::string digests(std::string const& list) { return std::regex_replace(list, std::regex("#.*\n|[^\n]* "), ""); }

} // namespace

TEST_F(FarmTest, NeedsNothingToRunChunksInParallel) {
    Outcome const outcome =
        Farm(std::string("--local --workers 2 --out film.mkv ") + small_film, {"PATH=" + Without("parallel")});
    EXPECT_EQ(outcome.status, 0) << outcome.error;
    Record("whole.mkv");
    ExpectSame("film.mkv", "whole.mkv");
}

TEST_F(FarmTest, SharesTheWorkBetweenMachines) {
    // Stands in for ssh: notes the machine's name, and runs the command here, in a login shell's environment.
    constexpr char const* ssh = R"(#!/bin/bash
export SHELL=/bin/bash
while [[ "$1" == -* ]]; do shift; done
echo "$1" >>"${0%/*}/machines"
[ "$2" != -- ] || shift
eval "${@:2}"
)";
    fs::permissions(folder.Write("ssh", ssh), fs::perms::owner_all);
    Outcome const outcome = Farm(std::string("--sshlogin 1/ada,1/bob --out film.mkv ") + small_film,
                                 {"PARALLEL_SSH=" + In("ssh"), "HOME=" + In(""), "SHELL"});
    EXPECT_EQ(outcome.status, 0) << outcome.error << read_all(In("film.mkv.farm/log"));
    EXPECT_THAT(read_all(In("machines")), HasSubstr("ada\n"));
    EXPECT_THAT(read_all(In("machines")), HasSubstr("bob\n"));
    Record("whole.mkv");
    ExpectSame("film.mkv", "whole.mkv");
}

TEST_F(FarmTest, ChunksOfAnyLengthKeepTheTimesOfTheFilm) {
    for (std::string const rate : {"60", "60000/1001"}) {
        SCOPED_TRACE(rate);
        std::string const name = std::to_string(rate.size()) + ".mkv";
        ASSERT_EQ(Farm("--local --frames 301:352 --chunk 7 --fps " + rate + " --out " + name).status, 0);
        ASSERT_EQ(Shell(std::string("'" HARDSILENCE_BINARY_DIR "/hardsilence-record' --frames 301:352 --fps ") + rate +
                        " " + look + "--film whole.mkv")
                      .status,
                  0);
        ExpectSame(name, "whole.mkv");
    }
}

TEST_F(FarmTest, EncodesOnceInTheChunks) {
    for (std::string const ending : {"mp4", "webm"}) {
        SCOPED_TRACE(ending);
        ASSERT_EQ(Farm("--local --frames 300:380 --chunk 20 --out film." + ending).status, 0);
        Record("whole." + ending);
        Record("whole.mkv");
        EXPECT_EQ(times(Pictures("film." + ending)), times(Pictures("whole." + ending)));
        EXPECT_EQ(Sound("film." + ending), Sound("whole." + ending));
        std::string parts; // are encoded from lossless pictures
        for (char const number : {'0', '1', '2', '3'}) {
            parts += digests(Pictures("film." + ending + ".farm/0000" + number + "." + ending));
        }
        EXPECT_EQ(digests(Pictures("film." + ending)), parts);
        std::string const likeness = Shell("ffmpeg -i film." + ending +
                                           " -i whole.mkv -map 0:v -lavfi "
                                           "'[0:v]format=gray,settb=1/60,setpts=N[a];[1:v]format=gray,settb=1/"
                                           "60,setpts=N[b];[a][b]psnr' -f null - 2>&1")
                                         .output;
        std::smatch found;
        ASSERT_TRUE(std::regex_search(likeness, found, std::regex("PSNR.* min:([0-9.]+|inf)"))) << likeness;
        EXPECT_GT(std::stod(found[1]), 25) << "decibels, of the worst frame";
    }
}

TEST_F(FarmTest, EncodesAnythingElseFromAllChunks) {
    std::string const encoder = "--encoder '-vf negate -c:v mpeg4 -q:v 2 -c:a ac3' ";
    ASSERT_EQ(Farm("--local " + encoder + small_film + "--out film.avi").status, 0);
    EXPECT_EQ(Shell("ffprobe -v error -count_packets -show_entries stream=codec_name,nb_read_packets -of csv=p=0 "
                    "-select_streams v film.avi")
                  .output,
              "mpeg4,80\n");
    EXPECT_THAT(Shell("ffprobe -v error -show_entries stream=codec_name -of csv=p=0 film.avi").output,
                HasSubstr("ac3\n"));
    ASSERT_EQ(Farm("--local --no-sound " + std::string(small_film) + "--out film.webp").status, 0);
    EXPECT_THAT(read_all(In("film.webp")).substr(0, 40), HasSubstr("WEBPVP8X"));
}
