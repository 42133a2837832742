// SPDX-License-Identifier: MIT
// The rehearsal in its window, with real keys and a real mouse.

#include "tests/support/command.h"
#include "tests/support/images.h"
#include "tests/support/temp.h"
#include "tests/window/xscreen.h"
#include "tools/record/beats.h"
#include "tools/rehearse/keys.h"

#include <csignal>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <thread>

using namespace std::chrono_literals;
using testing::HasSubstr;
using testing::MatchesRegex;
namespace fs = std::filesystem;

namespace {

std::string const program = HARDSILENCE_BINARY_DIR "/hardsilence-rehearse";

/// A rehearsal in a small window of an X server of its own, in a folder with a copy of the data.
class Room {
public:
    explicit Room(std::vector<std::string> const& options = {}, std::string const& size = "320x240",
                  std::vector<std::string> const& environment = {"ALSOFT_DRIVERS=null"})
        : environment_(environment) {
        fs::copy("data", folder.Path("data"));
        options_ = {program, "--tell", "--samples", "0", "--size", size};
        options_.insert(options_.end(), options.begin(), options.end());
    }

    /// @return false where the window does not open
    bool Open() {
        environment_.push_back("DISPLAY=" + screen.Name());
        environment_.push_back("TMPDIR=" + folder.Path("")); // what is killed leaves its copy of the data
        process = std::make_unique<Process>(options_, environment_, folder.Path(""));
        if (!screen.FindShow()) return false;
        std::this_thread::sleep_for(1s); // the first frames
        return true;
    }

    /// Waits for a further line that begins like this.
    /// @return the line; "" if none comes
    std::string Line(std::string const& begin) {
        for (int i = 0; i < 1000; ++i) {
            std::string const all = process->Output();
            for (std::size_t end; (end = all.find('\n', read)) != std::string::npos;) {
                std::string const line = all.substr(read, end - read);
                read = end + 1;
                if (line.starts_with(begin)) return line;
            }
            std::this_thread::sleep_for(10ms);
        }
        return "";
    }

    /// Presses a key.
    /// @return what the program tells then
    std::string Press(std::string const& key, std::string const& name) {
        screen.Press(key);
        return Line(name + ": ");
    }

    support::TempFolder folder;
    XScreen screen;
    std::unique_ptr<Process> process;

private:
    std::vector<std::string> options_;
    std::vector<std::string> environment_;
    std::size_t read = 0; ///< of the program's output
};

/// The number behind a word of a line.
double number(std::string const& line, std::string const& word) {
    std::size_t const at = line.find(word + " ");
    return at == std::string::npos ? -1 : std::stod(line.substr(at + word.size() + 1));
}

struct KeyTest {
    char const* key;  ///< in xdotool's words
    char const* name; ///< in the table
    char const* told; ///< a regular expression of what follows the beat
};

// From beat 20 on, frame 546; a beat is 27.27 frames. Gun Girl begins with beat 16, Swapper with beat 64.
constexpr KeyTest standing_keys[] = {
    {"period", "Period", "frame 547 stands x1 wire samples mute"},
    {"comma", "Comma", "frame 546 stands x1 .*"},
    {"Right", "Right", "frame 573 stands x1 .*"},
    {"Left", "Left", "frame 546 stands x1 .*"},
    {"Up", "Up", "frame 655 stands x1 .*"},
    {"Down", "Down", "frame 546 stands x1 .*"},
    {"Next", "Page Down", "frame 1746 stands x1 .*"},
    {"Prior", "Page Up", "frame 437 stands x1 .*"},
    {"a", "A", "frame 437 stands x1 loop 437:10473 .*"},
    {"Right", "Right", "frame 464 stands x1 loop 437:10473 .*"},
    {"b", "B", "frame 464 stands x1 loop 437:464 .*"},
    {"l", "L", "frame 464 stands x1 wire samples mute"},
    {"End", "End", "frame 10472 stands x1 .*"},
    {"Home", "Home", "frame 0 stands x1 .*"},
    {"minus", "-", "frame 0 stands x0.5 .*"},
    {"n", "N", "frame 0 stands x1 .*"},
    {"equal", "=", "frame 0 stands x2 .*"},
    {"minus", "-", "frame 0 stands x1 .*"},
    {"m", "M", "frame 0 stands x1 wire samples"},
    {"c", "C", "frame 0 stands x1 calm wire samples"},
    {"w", "W", "frame 0 stands x1 calm samples"},
    {"s", "S", "frame 0 stands x1 calm"},
    {"f", "F", "frame 0 stands x1 calm camera"},
    {"r", "R", "frame 0 stands x1 calm camera"},
    {"Tab", "Tab", "frame 0 stands x1 calm camera panel"},
    {"F1", "F1", "frame 0 stands x1 calm camera panel keys"},
    {"F5", "F5", "frame 0 stands x1 calm camera panel keys"},
    {"p", "P", "frame 0 stands x1 calm camera panel keys"},
    {"space", "Space", "frame 0 plays x1 calm camera panel keys"},
    {"Escape", "Escape", "frame [0-9]+ plays x1 calm camera panel keys"},
};

} // namespace

TEST(RehearsalWindow, EveryKeyDoesWhatItsRowSays) {
    Room room({"--at", "20", "--mute", "--no-panel"});
    ASSERT_TRUE(room.Open()) << room.process->Error();
    std::map<std::string, int> pressed;
    for (KeyTest const& test : standing_keys) {
        SCOPED_TRACE(test.name);
        EXPECT_THAT(room.Press(test.key, test.name),
                    MatchesRegex(std::string(test.name) + ": beat [0-9.]+ " + test.told));
        ++pressed[test.name];
    }
    EXPECT_EQ(room.process->Wait(5s), 0) << "Escape has ended it";
    for (KeyRow const& key : key_table()) EXPECT_GT(pressed[key.name], 0) << key.name << " was not tried";
}

TEST(RehearsalWindow, PlaysAtItsSpeedAndStands) {
    Room room({"--at", "100", "--mute", "--no-panel"});
    ASSERT_TRUE(room.Open());
    double speeds[2] = {};
    for (double& speed : speeds) {
        double const from = number(room.Press("space", "Space"), "frame");
        std::this_thread::sleep_for(2s);
        speed = number(room.Press("space", "Space"), "frame") - from;
        room.Press("minus", "-");
        room.Press("minus", "-");
    }
    EXPECT_GT(speeds[0], 100);
    EXPECT_LT(speeds[0], 250);
    EXPECT_GT(speeds[1], 25);
    EXPECT_LT(speeds[1], 63) << "a quarter of that";
    auto const stands = room.screen.Look();
    std::this_thread::sleep_for(300ms);
    EXPECT_TRUE(room.screen.Look() == stands);
}

TEST(RehearsalWindow, StaysWithinItsLoop) {
    Room room({"--at", "40", "--mute", "--no-panel"});
    ASSERT_TRUE(room.Open());
    room.Press("a", "A");
    room.Press("Right", "Right");
    room.Press("b", "B");
    room.Press("space", "Space");
    for (int i = 0; i < 5; ++i) {
        std::this_thread::sleep_for(300ms);
        double const frame = number(room.Press("m", "M"), "frame");
        EXPECT_GE(frame, 1091);
        EXPECT_LT(frame, 1119);
    }
}

TEST(RehearsalWindow, SavesTheRecordersPictureNamedByBeat) {
    Room room({"--at", "76.5", "--mute", "--no-panel", "--pictures", "."});
    ASSERT_TRUE(room.Open());
    room.Press("p", "P");
    std::string const path = room.Line("/");
    EXPECT_EQ(fs::path(path).filename(), "beat_076.523.png");
    support::Outcome const recorded =
        support::run_shell("'" HARDSILENCE_BINARY_DIR "/hardsilence-record' --beats 76.523 --samples 0 --size 320x240 "
                           "--frame-after --out recorded",
                           {.folder = room.folder.Path("")});
    ASSERT_EQ(recorded.status, 0) << recorded.error;
    sf::Image saved;
    sf::Image expected;
    ASSERT_TRUE(saved.loadFromFile(path));
    ASSERT_TRUE(expected.loadFromFile(room.folder.Path("recorded/beat_076.523.png")));
    sf::Image next;
    ASSERT_TRUE(next.loadFromFile(room.folder.Path("recorded/beat_076.523b.png")));
    // A window is not drawn by quite the same code as a picture off-screen.
    EXPECT_LE(differing_pixels(saved, expected, 0), 4u);
    EXPECT_GT(differing_pixels(saved, next, 0), 40u);
}

TEST(RehearsalWindow, GoesWhereTheMouseClicksInTheTimeline) {
    Room room({"--mute"}, "800x600");
    ASSERT_TRUE(room.Open());
    // The strip of the whole show, of 384 beats, lies at the upper edge of the lower third.
    auto const click = [&](int x, int y) {
        room.screen.Point(x, y);
        std::this_thread::sleep_for(300ms);
        room.screen.ButtonDown(1);
        std::this_thread::sleep_for(300ms);
        room.screen.ButtonUp(1);
        std::this_thread::sleep_for(300ms);
        return number(room.Press("m", "M"), "beat");
    };
    double const unit = 0.75;
    double const left = 56 * unit;
    double const width = 800 - left - 14 * unit;
    int const top = static_cast<int>(600 - 300 * unit + 40 * unit);
    for (double const share : {0.5, 0.9, 0.1}) {
        EXPECT_NEAR(click(static_cast<int>(left + share * width), top), share * 384, 1.0);
    }
    // Below it the scene that plays, Gun Girl from beat 16 to 64.
    EXPECT_NEAR(click(static_cast<int>(left + 0.75 * width), 500), 52, 0.5);
}

TEST(RehearsalWindow, DragsThroughTheShow) {
    Room room({"--mute"}, "800x600");
    ASSERT_TRUE(room.Open());
    room.screen.Point(700, 405);
    std::this_thread::sleep_for(200ms);
    room.screen.ButtonDown(1);
    for (int x = 700; x >= 100; x -= 100) {
        room.screen.Point(x, 405);
        std::this_thread::sleep_for(100ms);
    }
    std::this_thread::sleep_for(500ms);
    room.screen.ButtonUp(1);
    EXPECT_NEAR(number(room.Press("m", "M"), "beat"), (100 - 42) / 747.5 * 384, 1.0);
}

TEST(RehearsalWindow, FliesItsCameraByTheMouseAndPrintsItsPose) {
    Room room({"--at", "260", "--mute", "--no-panel"});
    ASSERT_TRUE(room.Open());
    room.screen.Press("f");
    EXPECT_EQ(room.Line("camera->SetPos"), "camera->SetPos({0.000f, 0.000f, 31.000f});");
    EXPECT_EQ(room.Line("camera->SetLookPos"), "camera->SetLookPos({0.000f, 0.000f, 0.000f});");
    auto const before = room.screen.Look();
    room.screen.Point(160, 120);
    room.screen.Click(4); // the wheel, up
    EXPECT_EQ(room.Line("camera->SetPos"), "camera->SetPos({0.000f, 0.000f, 27.900f});");
    std::this_thread::sleep_for(300ms);
    EXPECT_FALSE(room.screen.Look() == before);
    room.screen.ButtonDown(1);
    std::this_thread::sleep_for(200ms);
    room.screen.Point(200, 120);
    std::this_thread::sleep_for(200ms);
    room.screen.ButtonUp(1);
    EXPECT_EQ(room.Line("camera->SetPos"), "camera->SetPos({0.000f, 0.000f, 27.900f});");
    std::string const look = room.Line("camera->SetLookPos");
    EXPECT_THAT(look, MatchesRegex("camera->SetLookPos\\(\\{4\\.[0-9]+f, 0\\.000f, -2\\.[0-9]+f\\}\\);"));
}

TEST(RehearsalWindow, ShowsItsPanelBesideThePictureAndHidesIt) {
    Room room({"--at", "270", "--mute"}, "800x600");
    ASSERT_TRUE(room.Open());
    // A place in the panel, and one in the timeline.
    auto const becomes = [&](bool shown) {
        for (int i = 0; i < 300; ++i) {
            auto const picture = room.screen.Look();
            bool const panel = picture.At(2, 300) == 0x0d0f13;
            bool const timeline = picture.At(2, 590) == 0x0d0f13;
            if (panel == shown && timeline == shown) return true;
            std::this_thread::sleep_for(30ms);
        }
        return false;
    };
    EXPECT_TRUE(becomes(true));
    room.Press("Tab", "Tab");
    EXPECT_TRUE(becomes(false));
}

namespace {

/// A copy of a mesh that is half as wide.
std::string narrowed(std::string mesh) {
    for (std::size_t at = 0; (at = mesh.find(" X:", at)) != std::string::npos; at += 3) {
        std::size_t const end = mesh.find(' ', at + 3);
        mesh.replace(at + 3, end - at - 3, std::to_string(std::stod(mesh.substr(at + 3)) / 2));
    }
    return mesh;
}

} // namespace

TEST(RehearsalWindow, ShowsAModelThatChangesOnDiskAtTheSameBeat) {
    Room room({"--at", "270", "--mute", "--no-panel"});
    ASSERT_TRUE(room.Open());
    auto const before = room.screen.Look();
    std::string const good = support::read_all(room.folder.Path("data/HARD-title.asc"));
    auto const start = std::chrono::steady_clock::now();
    room.folder.Write("data/HARD-title.asc", narrowed(good));
    EXPECT_THAT(room.Line("data: built"), MatchesRegex("data: built anew in [0-9]+ ms"));
    auto const took = std::chrono::steady_clock::now() - start;
    EXPECT_LT(took, 2s); // 200 ms on a machine that does nothing else
    RecordProperty("milliseconds",
                   static_cast<int>(std::chrono::duration_cast<std::chrono::milliseconds>(took).count()));
    std::this_thread::sleep_for(500ms);
    auto const after = room.screen.Look();
    EXPECT_FALSE(after == before);
    EXPECT_EQ(number(room.Press("m", "M"), "frame"), frame_at(270 * one_beat));

    // Broken, the show goes on as it was; renamed over it, the good one is back.
    room.folder.Write("data/HARD-title.asc", good.substr(0, good.size() / 3));
    EXPECT_THAT(room.Line("data: "), testing::StartsWith("data: data/HARD-title.asc"));
    EXPECT_EQ(number(room.Press("Home", "Home"), "frame"), 0);
    EXPECT_EQ(number(room.Press("l", "L"), "frame"), 0);
    room.folder.Write("new", good);
    fs::rename(room.folder.Path("new"), room.folder.Path("data/HARD-title.asc"));
    EXPECT_THAT(room.Line("data: built"), MatchesRegex("data: built anew in [0-9]+ ms"));
    EXPECT_EQ(room.Line("data: all"), "data: all is well");
    EXPECT_EQ(room.process->Error(), "Setting vertical sync not supported\n");
}

TEST(RehearsalWindow, PlaysOnWhileAFileIsSavedAHundredTimesASecond) {
    Room room({"--at", "270", "--mute", "--no-panel", "--play"});
    ASSERT_TRUE(room.Open());
    std::string const good = support::read_all(room.folder.Path("data/HARD-title.asc"));
    std::string const other = narrowed(good);
    for (int i = 0; i < 200; ++i) {
        room.folder.Write("data/HARD-title.asc", i % 2 == 0 ? other : good);
        std::this_thread::sleep_for(10ms);
    }
    EXPECT_NE(room.Line("data: built"), "");
    room.folder.Write("data/HARD-title.asc", other + "nonsense");
    EXPECT_NE(room.Line("data: data/HARD-title.asc"), "") << "the last one is seen";
    EXPECT_TRUE(room.process->Running());
}

TEST(RehearsalWindow, OutlivesItsDataAndItsMusic) {
    Room room({"--at", "270", "--no-panel", "--play"});
    ASSERT_TRUE(room.Open());
    fs::rename(room.folder.Path("data"), room.folder.Path("away"));
    EXPECT_EQ(room.Line("data: data/"), "data: data/weknow.asc is missing");
    EXPECT_EQ(room.Line("data/rump2"), "data/rump2.ogg is missing");
    EXPECT_EQ(number(room.Press("Home", "Home"), "frame") < 60, true) << "back, by the copy";
    fs::rename(room.folder.Path("away"), room.folder.Path("data"));
    EXPECT_EQ(room.Line("data: all"), "data: all is well");
    room.folder.Write("data/rump2.ogg", "no sound");
    EXPECT_THAT(room.Line("data: data/rump2"), HasSubstr("data/rump2.ogg is not Ogg Vorbis"));
    EXPECT_TRUE(room.process->Running());
}

TEST(RehearsalWindow, IsSilentWithoutMusicOrADevice) {
    Room without_music({"--play"});
    fs::remove(without_music.folder.Path("data/rump2.ogg"));
    ASSERT_TRUE(without_music.Open());
    EXPECT_NE(without_music.Press("space", "Space"), "");
    Room without_device({"--play"}, "320x240", {"ALSOFT_DRIVERS=none"});
    ASSERT_TRUE(without_device.Open());
    EXPECT_EQ(without_device.Line("data: "), "data: soundtrack, no sound device; the show is silent");
    EXPECT_NE(without_device.Press("space", "Space"), "");
}

TEST(RehearsalWindow, EndsWhenItIsAskedTo) {
    for (int const signal : {SIGTERM, SIGINT}) {
        Room room({"--mute"});
        ASSERT_TRUE(room.Open());
        room.process->Signal(signal);
        EXPECT_EQ(room.process->Wait(5s), 0);
    }
    Room room({"--mute"});
    ASSERT_TRUE(room.Open());
    room.screen.AskToClose();
    EXPECT_EQ(room.process->Wait(5s), 0);
}

TEST(RehearsalWindow, SaysInALineWhyItCannotBegin) {
    support::TempFolder const empty;
    auto const without_display = support::run({program}, {.environment = {"DISPLAY"}});
    EXPECT_EQ(without_display.status, 1);
    EXPECT_EQ(without_display.error, "Cannot open the display. Is DISPLAY set, and an X server running?\n");
    fs::copy("data", empty.Path("data"));
    empty.Write("data/torus2.asc", "nothing");
    auto const with_faulty_data = support::run({program}, {.folder = empty.Path(""), .environment = {"DISPLAY"}});
    EXPECT_EQ(with_faulty_data.status, 1);
    EXPECT_THAT(with_faulty_data.error, testing::StartsWith("hardsilence-rehearse: data/torus2.asc"));
    EXPECT_EQ(std::count(with_faulty_data.error.begin(), with_faulty_data.error.end(), '\n'), 1);
}
