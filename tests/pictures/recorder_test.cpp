#include "difference.h"
#include "tests/show/scores.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <sstream>
#include <sys/wait.h>

namespace fs = std::filesystem;

namespace {

struct Outcome {
    int status;
    std::string out;
    std::string error;
};

/// The short names of the scenes, as a message lists them.
std::string names() {
    std::string list;
    for (SceneEntry const& scene : running_order()) list += (list.empty() ? "" : ", ") + std::string(scene.name);
    return list;
}

std::string content(fs::path const& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream all;
    all << file.rdbuf();
    return all.str();
}

/// Runs the program in an empty folder of its own.
class Recorder : public testing::Test {
protected:
    void SetUp() override {
        std::string const name = testing::UnitTest::GetInstance()->current_test_info()->name();
        folder = fs::path(HARDSILENCE_BINARY_DIR) / "tests/pictures" / ("recorder_test." + name);
        fs::remove_all(folder);
        fs::create_directories(folder);
    }

    void TearDown() override {
        if (!HasFailure()) fs::remove_all(folder);
    }

    Outcome Record(std::string const& arguments, std::string const& environment = "") const {
        std::string const log = (folder / "error.txt").string();
        std::string const command = "cd '" + folder.string() + "' && " + environment +
                                    " '" HARDSILENCE_BINARY_DIR "/hardsilence-record' " + arguments + " 2>'" + log +
                                    "'";
        FILE* const pipe = popen(command.c_str(), "r");
        if (!pipe) return {-1, "", "cannot run it"};
        Outcome outcome;
        char buffer[4096];
        for (std::size_t n = 0; (n = fread(buffer, 1, sizeof buffer, pipe)) > 0;) outcome.out.append(buffer, n);
        int const status = pclose(pipe);
        outcome.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        outcome.error = content(log);
        fs::remove(log);
        return outcome;
    }

    std::string In(std::string const& file) const { return (folder / file).string(); }

    fs::path folder;
};

} // namespace

TEST_F(Recorder, WritesPicturesNamedByBeatIntoAFolderOfTheCaller) {
    Outcome const outcome = Record("--beats 12.4,0.5 --frames --size 64x48 --out a/b");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.error, "");
    EXPECT_EQ(outcome.out, In("a/b/beat_000.500.png") + "\n" + In("a/b/beat_000.500b.png") + "\n" +
                               In("a/b/beat_012.400.png") + "\n" + In("a/b/beat_012.400b.png") + "\n");
    sf::Image image;
    ASSERT_TRUE(image.loadFromFile(In("a/b/beat_012.400.png")));
    EXPECT_EQ(image.getSize(), sf::Vector2u(64, 48));
}

TEST_F(Recorder, CountsFromTheFirstBeatOfAScene) {
    EXPECT_EQ(Record("--beats 65.5 --size 64x48 --out .").status, 0);
    EXPECT_EQ(Record("--beats 1.5 --scene Swapper --size 64x48 --out .").out, In("swapper_001.500.png") + "\n");
    EXPECT_EQ(content(In("swapper_001.500.png")), content(In("beat_065.500.png")));
}

TEST_F(Recorder, DrawsTheSamePixelsOnEveryRun) {
    std::string const beats = "--beats 0.5,12.4,17.5,68.1,168.2,184.5,256,325,353.5 --frames --size 256x192 ";
    ASSERT_EQ(Record(beats + "--out first --sheet first/sheet.png").status, 0);
    ASSERT_EQ(Record(beats + "--out second --sheet second/sheet.png").status, 0);
    int count = 0;
    for (fs::directory_entry const& entry : fs::directory_iterator(folder / "first")) {
        SCOPED_TRACE(entry.path().filename());
        std::string const first = content(entry.path());
        EXPECT_FALSE(first.empty());
        EXPECT_TRUE(first == content(folder / "second" / entry.path().filename()));
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

TEST_F(Recorder, DrawsThePulseWireUnlessToldOtherwise) {
    ASSERT_EQ(Record("--beats 184.5 --size 256x192 --out with", "HARDSILENCE_WIRE=0").status, 0);
    ASSERT_EQ(Record("--beats 184.5 --size 256x192 --out without --no-wire", "HARDSILENCE_WIRE=1").status, 0);
    EXPECT_NE(content(In("with/beat_184.500.png")), content(In("without/beat_184.500.png")));
}

TEST_F(Recorder, TakesTheMomentsOfEveryScene) {
    ASSERT_EQ(Record("--overview --size 16x12 --out .").status, 0);
    std::size_t pictures = 0;
    for (fs::directory_entry const& entry : fs::directory_iterator(folder)) {
        pictures += entry.path().extension() == ".png" ? 1 : 0;
    }
    EXPECT_EQ(pictures, running_order().size() * running_order()[0].moments.size());
    EXPECT_TRUE(fs::exists(In("beat_000.500.png"))) << "half a beat into the first scene";
    EXPECT_TRUE(fs::exists(In("beat_020.100.png"))) << "4.1 beats into the second, which begins at 16";
}

TEST_F(Recorder, ListsTheScenes) {
    Outcome const outcome = Record("--list");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.error, "");
    std::istringstream lines(outcome.out);
    std::string line;
    std::getline(lines, line);
    EXPECT_EQ(line, "name       first beat  beats  title");
    int first = 0;
    for (std::size_t i = 0; i < scores::all().size(); ++i) {
        scores::Score const& score = scores::all()[i];
        std::string name;
        std::string title;
        int from = -1;
        int beats = -1;
        lines >> name >> from >> beats >> std::ws;
        std::getline(lines, title);
        EXPECT_EQ(name, running_order()[i].name);
        EXPECT_EQ(from, first) << name;
        EXPECT_EQ(beats, score.length) << name;
        EXPECT_EQ(title, score.title);
        first += score.length;
    }
    EXPECT_FALSE(std::getline(lines, line)) << line;
}

TEST_F(Recorder, PlaysToTheLastFrameAndNotPastIt) {
    std::string const last = std::to_string(scores::show_beats - 1);
    EXPECT_EQ(Record("--beats " + last + ".95 --size 16x12 --out .").status, 0);
    EXPECT_EQ(Record("--beats 15.9 --scene intro --size 16x12 --out .").status, 0);
}

TEST_F(Recorder, FaultsGetOneLineAndStatusOne) {
    std::ofstream(In("file")) << "in the way";
    std::string const beats = std::to_string(scores::show_beats);
    std::string const last = std::to_string(scores::show_beats - 1);
    std::string const past_the_end = " lies past the last frame of the show, which has " + beats + " beats";
    std::pair<std::string, std::string> const cases[] = {
        {"--beats x --out .", "--beats: 'x' is not a list of beats such as 0.5,3.25 or 0:16:0.5"},
        {"--beats 1 --out . --scene Finale", "no scene is called 'Finale'; there are " + names()},
        {"--beats " + beats + " --out .", "beat " + beats + past_the_end},
        {"--beats " + last + ".99 --out .", "beat " + last + ".99" + past_the_end},
        {"--beats " + last + ".95 --frames --out .", "beat " + last + ".95" + past_the_end},
        {"--beats 1,16 --scene intro --out .", "beat 16 lies past the last frame of Intro, which has 16 beats"},
        {"--beats 1 --out file", "cannot make the folder " + In("file") + ": Not a directory"},
        {"--beats 1 --out file/deeper", "cannot make the folder " + In("file/deeper") + ": Not a directory"},
        {"--beats 1 --size 16x12 --out /proc", "cannot write /proc/beat_001.000.png"},
        {"--beats 1 --size 16x12 --sheet .", "cannot write " + In("")},
        {"--beats 1 --size 16x12 --sheet a.unknown", "cannot write " + In("a.unknown")},
    };
    for (auto const& [arguments, line] : cases) {
        SCOPED_TRACE(arguments);
        Outcome const outcome = Record(arguments);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.error, "hardsilence-record: " + line + "\n");
        EXPECT_EQ(outcome.out, "");
    }
    for (fs::directory_entry const& entry : fs::directory_iterator(folder)) {
        EXPECT_EQ(entry.path().filename(), "file") << "nothing is left behind";
    }
}

TEST_F(Recorder, SaysSoWhereTheDriverCannotDoIt) {
    Outcome const outcome = Record("--beats 1 --samples 64 --out .");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.error, testing::MatchesRegex("hardsilence-record: this driver cannot draw 1024x768 pixels with "
                                                     "64 samples; it goes up to [0-9]+ pixels and [0-9]+ samples\n"));
}

TEST_F(Recorder, SaysSoWhereThereIsNoDriver) {
    Outcome const outcome = Record("--beats 1 --out .", "__EGL_VENDOR_LIBRARY_FILENAMES=/dev/null");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.error, "hardsilence-record: EGL offers no OpenGL context to draw off-screen with\n");
}
