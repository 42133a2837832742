// SPDX-License-Identifier: MIT
// The recorder as a program: what it writes, its messages and its exit status.

#include "tests/show/scores.h"
#include "tests/support/command.h"
#include "tests/support/images.h"
#include "tests/support/temp.h"
#include "tests/tools/record/recorderrun.h"

#include <chrono>
#include <filesystem>
#include <gmock/gmock.h>
#include <iomanip>
#include <sstream>

namespace fs = std::filesystem;
using support::Outcome;
using support::read_all;

namespace {

/// The short names of the scenes, as messages list them.
std::string names() {
    std::string list;
    for (SceneEntry const& scene : running_order()) list += (list.empty() ? "" : ", ") + std::string(scene.name);
    return list;
}

/// A beat as it appears in file names: "020.100".
std::string padded(double beats) {
    std::ostringstream text;
    text << std::fixed << std::setprecision(3) << std::setw(7) << std::setfill('0') << beats;
    return text.str();
}

using Recorder = RecorderRun;

} // namespace

TEST_F(Recorder, WritesPicturesNamedByBeatIntoAFolderOfTheCaller) {
    Outcome const outcome = Record("--beats 12.4,0.5 --frame-after --size 64x48 --out a/b");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.error, "");
    EXPECT_EQ(outcome.output, In("a/b/beat_000.500.png") + "\n" + In("a/b/beat_000.500b.png") + "\n" +
                                  In("a/b/beat_012.400.png") + "\n" + In("a/b/beat_012.400b.png") + "\n");
    sf::Image image;
    ASSERT_TRUE(image.loadFromFile(In("a/b/beat_012.400.png")));
    EXPECT_EQ(image.getSize(), sf::Vector2u(64, 48));
}

TEST_F(Recorder, CountsFromTheFirstBeatOfAScene) {
    std::size_t const third = 2;
    std::string const in_show = padded(scores::first_beat(third) + 1.5);
    std::string const in_scene = std::string(running_order()[third].name) + "_001.500.png";
    EXPECT_EQ(Record("--beats " + in_show + " --size 64x48 --out .").status, 0);
    EXPECT_EQ(
        Record("--beats 1.5 --scene '" + std::string(scores::all()[third].title) + "' --size 64x48 --out .").output,
        In(in_scene) + "\n");
    EXPECT_NE(read_all(In(in_scene)), "");
    EXPECT_EQ(read_all(In(in_scene)), read_all(In("beat_" + in_show + ".png")));
}

TEST_F(Recorder, DrawsTheSamePixelsOnEveryRun) {
    std::string const beats = "--beats 0.5,12.4,17.5,68.1,168.2,184.5,256,325,353.5 --frame-after --size 256x192 ";
    ASSERT_EQ(Record(beats + "--out first --sheet first/sheet.png").status, 0);
    ASSERT_EQ(Record(beats + "--out second --sheet second/sheet.png").status, 0);
    int count = 0;
    for (fs::directory_entry const& entry : fs::directory_iterator(In("first"))) {
        SCOPED_TRACE(entry.path().filename());
        std::string const first = read_all(entry.path());
        EXPECT_FALSE(first.empty());
        EXPECT_TRUE(first == read_all(In("second" / entry.path().filename())));
        ++count;
    }
    EXPECT_EQ(count, 19);
}

TEST_F(Recorder, SheetHoldsThePicturesInTheOrderAskedFor) {
    ASSERT_EQ(Record("--beats 184.5,0.5 --columns 1 --size 64x48 --out . --sheet sheet.png").status, 0);
    sf::Image sheet, wire, word, cell;
    ASSERT_TRUE(sheet.loadFromFile(In("sheet.png")));
    ASSERT_TRUE(wire.loadFromFile(In("beat_184.500.png")));
    ASSERT_TRUE(word.loadFromFile(In("beat_000.500.png")));
    cell.create(64, 48);
    cell.copy(sheet, 0, 0, sf::IntRect(4, 4, 64, 48));
    EXPECT_EQ(differing_pixels(cell, wire, 0), 0u);
    cell.copy(sheet, 0, 0, sf::IntRect(4, 78, 64, 48));
    EXPECT_EQ(differing_pixels(cell, word, 0), 0u);
}

TEST_F(Recorder, DrawsThePulseWireByDefault) {
    ASSERT_EQ(Record("--scene tunnelgate --beats 0.5 --size 256x192 --out with", {"HARDSILENCE_WIRE=0"}).status, 0);
    ASSERT_EQ(
        Record("--scene tunnelgate --beats 0.5 --size 256x192 --out without --no-wire", {"HARDSILENCE_WIRE=1"}).status,
        0);
    EXPECT_NE(read_all(In("with/tunnelgate_000.500.png")), read_all(In("without/tunnelgate_000.500.png")));
}

TEST_F(Recorder, TakesTheMomentsOfEveryScene) {
    ASSERT_EQ(Record("--overview --size 16x12 --out .").status, 0);
    std::size_t pictures = 0;
    for (fs::directory_entry const& entry : fs::directory_iterator(In(""))) {
        pictures += entry.path().extension() == ".png" ? 1 : 0;
    }
    EXPECT_EQ(pictures, running_order().size() * running_order()[0].moments.size());
    for (std::size_t i = 0; i < running_order().size(); ++i) {
        for (float const moment : running_order()[i].moments) {
            std::string const file = "beat_" + padded(scores::first_beat(i) + static_cast<double>(moment)) + ".png";
            EXPECT_TRUE(fs::exists(In(file))) << file;
        }
    }
}

TEST_F(Recorder, DrawsTheCalmShowWhenToldTo) {
    ASSERT_EQ(Record("--scene swapper --beats 6 --size 64x48 --out full", {"HARDSILENCE_CALM=1"}).status, 0);
    ASSERT_EQ(Record("--scene swapper --beats 6 --size 64x48 --out calm --calm").status, 0);
    sf::Image full, calm;
    ASSERT_TRUE(full.loadFromFile(In("full/swapper_006.000.png")));
    ASSERT_TRUE(calm.loadFromFile(In("calm/swapper_006.000.png")));
    EXPECT_EQ(full.getPixel(0, 0), sf::Color::White); // two beats after a strobe
    EXPECT_EQ(calm.getPixel(0, 0), sf::Color::Black);
}

TEST_F(Recorder, ListsTheScenes) {
    Outcome const outcome = Record("--list");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.error, "");
    std::istringstream lines(outcome.output);
    std::string line;
    std::getline(lines, line);
    EXPECT_EQ(line, "name       first beat  beats  title");
    for (std::size_t i = 0; i < scores::all().size(); ++i) {
        scores::Score const& score = scores::all()[i];
        std::string name;
        std::string title;
        int from = -1;
        int beats = -1;
        lines >> name >> from >> beats >> std::ws;
        std::getline(lines, title);
        EXPECT_EQ(name, running_order()[i].name);
        EXPECT_EQ(from, scores::first_beat(i)) << name;
        EXPECT_EQ(beats, score.length) << name;
        EXPECT_EQ(title, score.title);
    }
    EXPECT_FALSE(std::getline(lines, line)) << line;
}

TEST_F(Recorder, PlaysToTheLastFrameAndNotPastIt) {
    std::string const last = std::to_string(scores::show_beats - 1);
    EXPECT_EQ(Record("--beats " + last + ".95 --size 16x12 --out .").status, 0);
    std::string const last_of_first = std::to_string(scores::all()[0].length - 1);
    EXPECT_EQ(
        Record("--beats " + last_of_first + ".9 --scene " + running_order()[0].name + " --size 16x12 --out .").status,
        0);
}

TEST_F(Recorder, FaultsGetOneLineAndStatusOne) {
    folder.Write("file", "in the way");
    std::string const beats = std::to_string(scores::show_beats);
    std::string const last = std::to_string(scores::show_beats - 1);
    scores::Score const& first = scores::all()[0];
    std::string const length = std::to_string(first.length);
    std::string const past_the_end = " lies past the last frame of the show, which has " + beats + " beats";
    Refusal const cases[] = {
        {"--beats x --out .", "--beats: 'x' is not a list of beats such as 0.5,3.25 or 0:16:0.5, to thousandths"},
        {"--beats 1 --out . --scene Finale", "no scene is called 'Finale'; there are " + names()},
        {"--beats " + beats + " --out .", "beat " + beats + past_the_end},
        {"--beats " + last + ".99 --out .", "beat " + last + ".99" + past_the_end},
        {"--beats " + last + ".95 --frame-after --out .", "beat " + last + ".95" + past_the_end},
        {"--beats 1," + length + " --scene " + running_order()[0].name + " --out .",
         "beat " + length + " lies past the last frame of " + first.title + ", which has " + length + " beats"},
        {"--beats 1 --out file", "cannot make the folder " + In("file") + ": Not a directory"},
        {"--beats 1 --out file/deeper", "cannot make the folder " + In("file/deeper") + ": Not a directory"},
        {"--beats 1 --size 16x12 --out /proc", "cannot write /proc/beat_001.000.png: No such file or directory"},
        {"--beats 1 --sheet .", "--sheet: '.' is not a path that ends in .png"},
        {"--beats 1 --sheet a.jpg", "--sheet: 'a.jpg' is not a path that ends in .png"},
    };
    ExpectRefusals(cases);
}

TEST_F(Recorder, NeverLeavesHalfAPictureNorTakesAnOldOne) {
    folder.Write("beat_001.000.png", "old");
    folder.Write("sheet.png", "old");
    for (char const* const where : {"--out .", "--sheet sheet.png"}) {
        Outcome const outcome = Record("--beats 1 --size 256x192 " + std::string(where), {}, "ulimit -f 1; ");
        EXPECT_EQ(outcome.status, 1);
        EXPECT_THAT(
            outcome.error,
            testing::MatchesRegex("hardsilence-record: cannot write .*/(beat_001.000|sheet).png: File too large\n"));
        EXPECT_EQ(outcome.output, "") << "no path of a file that is not there";
    }
    EXPECT_TRUE(read_all(In("beat_001.000.png")) + read_all(In("sheet.png")) == "oldold");
    EXPECT_EQ(std::distance(fs::directory_iterator(In("")), {}), 2);
}

TEST_F(Recorder, RefusesATooLargeSheetAtOnce) {
    struct {
        char const* arguments;
        char const* size;
    } const rows[] = {
        {"--beats 0:42:0.1 --size 320x8192 --samples 0 --columns 1", "328x3451564"},
        {"--beats 0:383:0.001 --size 1024x768 --samples 0", "1304x16698804"},
        {"--beats 0:40:0.01 --size 300x1000 --columns 100", "30404x41044"},
    };
    for (auto const& row : rows) {
        auto const start = std::chrono::steady_clock::now();
        Outcome const outcome = Record(row.arguments + std::string(" --sheet s.png"));
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
        EXPECT_EQ(outcome.status, 1) << row.arguments;
        EXPECT_EQ(outcome.error, "hardsilence-record: the sheet would have " + std::string(row.size) +
                                     " pixels; no side may have more than 65535, nor all of it more than 67108864\n");
    }
}

TEST_F(Recorder, NeedsItsWorkingFolderForRelativePathsOnly) {
    fs::create_directory(In("gone"));
    std::string const leave = "cd gone && rmdir ../gone && ";
    Outcome outcome = Record("--beats 1 --size 16x12 --out a", {}, leave);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.error, "hardsilence-record: cannot tell the working folder: No such file or directory\n");
    fs::create_directory(In("gone"));
    outcome = Record("--beats 1 --size 16x12 --out '" + In("a") + "'", {}, leave);
    EXPECT_EQ(outcome.status, 0) << outcome.error;
    EXPECT_EQ(outcome.output, In("a/beat_001.000.png") + "\n");
}

TEST_F(Recorder, WritesNamesOutThatWouldSteerATerminal) {
    folder.Write("file", "");
    Outcome const outcome = Record("--beats 1 --out \"$(printf 'file/a\\033[31m\\nb')\"");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.error,
              "hardsilence-record: cannot make the folder " + In("file/a\\x1b[31m\\x0ab") + ": Not a directory\n");
}

TEST_F(Recorder, FailsWhereItsOutputDoes) {
    for (char const* const arguments : {"--help", "--version", "--list", "--beats 1 --size 16x12 --out ."}) {
        Outcome const outcome = Record(arguments + std::string(" > /dev/full"));
        EXPECT_EQ(outcome.status, 1) << arguments;
        EXPECT_THAT(outcome.error, testing::StartsWith("hardsilence-record: cannot write to standard output"));
        EXPECT_EQ(std::count(outcome.error.begin(), outcome.error.end(), '\n'), 1);
    }
}

TEST_F(Recorder, SaysSoWhereTheDriverCannotDoIt) {
    Outcome const outcome = Record("--beats 1 --samples 64 --out .");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.error, testing::MatchesRegex("hardsilence-record: this driver cannot draw 1024x768 pixels with "
                                                     "64 samples; it goes up to [0-9]+ pixels and [0-9]+ samples\n"));
}

TEST_F(Recorder, SaysSoWhereThereIsNoDriver) {
    Outcome const outcome = Record("--beats 1 --out .", {"__EGL_VENDOR_LIBRARY_FILENAMES=/dev/null"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.error, "hardsilence-record: EGL offers no OpenGL context to draw off-screen with\n");
}
