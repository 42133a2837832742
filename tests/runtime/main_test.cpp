// SPDX-License-Identifier: MIT
// main.cpp itself, compiled with its main renamed demo_main.

#include "main.h"
#include "tests/support/glrecorder.h"

#include <SFML/Window/WindowStyle.hpp>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

int demo_main(int argc, char** argv);

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

namespace {

constexpr char const* help = R"(Hard Silence by Quillon 2012

Command line parameters:
    -width X    Resolution width (4:3)
    -w          Windowed mode
    -novsync    Disable vertical sync (enabled by default)
    -fps        Show frame rate
    -limit N    Limit frame rate to N frames per second
    -nolimit    Disable fps limit (60)
    -mute       Disable music playback

)";

/// The settings, as one text to compare.
std::string settings() {
    std::string text = "style " + std::to_string(video_fullscreen);
    text += ", " + std::to_string(resolution_x) + "x" + std::to_string(resolution_y);
    text += ", limit " + std::to_string(fps_limit_value);
    text += ", samples " + std::to_string(video_fsaa_level);
    if (!vsync) text += ", no sync";
    if (!music_enabled) text += ", mute";
    if (fps_counter) text += ", fps";
    if (mushroom_mode) text += ", magic";
    return text;
}

/// Restores all settings to those at program start.
class MainTest : public testing::Test {
protected:
    MainTest() { Reset(); }
    ~MainTest() override { Reset(); }

    static void Reset() {
        video_fullscreen = 8;
        vsync = true;
        resolution_x = 1024;
        resolution_y = 768;
        fps_limit_value = 60;
        video_fsaa_level = 4;
        music_enabled = true;
        fps_counter = mushroom_mode = quit = false;
    }
};

class CommandLine : public MainTest {
protected:
    /// @return what was printed
    std::string Read(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "hardsilence");
        std::vector<char*> argv;
        for (std::string& argument : arguments) argv.push_back(argument.data());
        testing::internal::CaptureStdout();
        status = read_command_line(static_cast<int>(argv.size()), argv.data());
        return testing::internal::GetCapturedStdout();
    }
    std::optional<int> status;
};

constexpr char const* defaults = "style 8, 1024x768, limit 60, samples 4";

TEST_F(CommandLine, StartsWithItsDefaults) {
    EXPECT_EQ(settings(), defaults);
    EXPECT_EQ(video_depth, 24u);
    EXPECT_EQ(video_stencil, 2u);
    EXPECT_FALSE(quit);
    EXPECT_EQ(static_cast<unsigned long>(sf::Style::Fullscreen), 8u);
    EXPECT_EQ(static_cast<unsigned long>(sf::Style::Close), 4u);
}

struct Row {
    std::vector<std::string> arguments;
    std::optional<int> status;
    std::string output;
    std::string settings;
};

std::optional<int> const goes_on = std::nullopt;

TEST_F(CommandLine, AnswersEveryOption) {
    Row const rows[] = {
        {{}, goes_on, "", defaults},
        {{"-w"}, goes_on, "", "style 4, 1024x768, limit 60, samples 4"},
        {{"-novsync"}, goes_on, "", "style 8, 1024x768, limit 60, samples 4, no sync"},
        {{"-fps"}, goes_on, "", "style 8, 1024x768, limit 60, samples 4, fps"},
        {{"-nolimit"}, goes_on, "", "style 8, 1024x768, limit 0, samples 4"},
        {{"-magic"}, goes_on, "", "style 8, 1024x768, limit 60, samples 4, magic"},
        {{"-mute"}, goes_on, "", "style 8, 1024x768, limit 60, samples 4, mute"},
        {{"-nofsaa"}, goes_on, "", "style 8, 1024x768, limit 60, samples 0"},
        {{"-limit", "30"}, goes_on, "", "style 8, 1024x768, limit 30, samples 4"},
        {{"-width", "1000"}, goes_on, "Using resolution 1000x750\n", "style 8, 1000x750, limit 60, samples 4"},
        {{"-width", "1024"}, goes_on, "Using resolution 1024x768\n", defaults},
        {{"-width", "800"}, goes_on, "Using resolution 800x600\n", "style 8, 800x600, limit 60, samples 4"},
        {{"-width", "800abc"}, goes_on, "Using resolution 800x600\n", "style 8, 800x600, limit 60, samples 4"},
        {{"-width", "1"}, goes_on, "Using resolution 1x0\n", "style 8, 1x0, limit 60, samples 4"},
        {{"-width", "-800"}, goes_on, "Using resolution -800x-600\n", "style 8, -800x-600, limit 60, samples 4"},
        {{"-width", "wide"}, goes_on, "Using resolution 0x0\n", "style 8, 0x0, limit 60, samples 4"},
        {{"-width", "-w"}, goes_on, "Using resolution 0x0\n", "style 8, 0x0, limit 60, samples 4"},
        {{"-limit", "-w", "-w"}, goes_on, "", "style 4, 1024x768, limit 0, samples 4"},
        {{"-limit"}, 1, "-limit requires a value\n", defaults},
        {{"-width"}, 1, "-width requires a value\n", defaults},
        {{"-w", "-width"}, 1, "-width requires a value\n", "style 4, 1024x768, limit 60, samples 4"},
        {{"-h"}, 0, help, defaults},
        {{"--help"}, 0, help, defaults},
        {{"-w", "-h", "-fps"}, 0, help, "style 4, 1024x768, limit 60, samples 4"},
        {{"-width", "800", "--help"},
         0,
         std::string("Using resolution 800x600\n") + help,
         "style 8, 800x600, limit 60, samples 4"},
        {{"-limit", "-h"}, goes_on, "", "style 8, 1024x768, limit 0, samples 4"},
        {{"-foo"}, 1, "Bad command line parameter '-foo'\n", defaults},
        {{"-foo", "-w"}, 1, "Bad command line parameter '-foo'\n", defaults},
        {{"-w", "-foo", "-h"}, 1, "Bad command line parameter '-foo'\n", "style 4, 1024x768, limit 60, samples 4"},
        {{""}, 1, "Bad command line parameter ''\n", defaults},
        {{"w"}, 1, "Bad command line parameter 'w'\n", defaults},
        {{"-W"}, 1, "Bad command line parameter '-W'\n", defaults},
        {{"-wi"}, 1, "Bad command line parameter '-wi'\n", defaults},
        {{"-help"}, 1, "Bad command line parameter '-help'\n", defaults},
        {{"-limit30"}, 1, "Bad command line parameter '-limit30'\n", defaults},
        {{"-nolimit", "-limit", "50"}, goes_on, "", "style 8, 1024x768, limit 50, samples 4"},
        {{"-limit", "50", "-nolimit"}, goes_on, "", "style 8, 1024x768, limit 0, samples 4"},
        {{"-width", "800", "-width", "640"},
         goes_on,
         "Using resolution 800x600\nUsing resolution 640x480\n",
         "style 8, 640x480, limit 60, samples 4"},
        {{"-w", "-novsync", "-fps", "-nolimit", "-magic", "-mute", "-nofsaa"},
         goes_on,
         "",
         "style 4, 1024x768, limit 0, samples 0, no sync, mute, fps, magic"},
    };
    for (Row const& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.arguments));
        Reset();
        EXPECT_EQ(Read(row.arguments), row.output);
        EXPECT_EQ(status, row.status);
        EXPECT_EQ(settings(), row.settings);
    }
}

TEST_F(CommandLine, EndsTheProgramWithItsStatusBeforeAnyWindowOpens) {
    char program[] = "hardsilence";
    // clang-format off
    char const* const rows[][2] = {
        {"-h",     "0"},
        {"--help", "0"},
        {"-foo",   "1"},
        {"-limit", "1"},
        {"-width", "1"},
    };
    // clang-format on
    unsetenv("DISPLAY");
    for (auto const& [option, expected] : rows) {
        std::string argument = option;
        char* argv[] = {program, argument.data(), nullptr};
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        EXPECT_EQ(std::to_string(demo_main(2, argv)), expected) << option;
        testing::internal::GetCapturedStdout();
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << option;
    }
}

TEST_F(CommandLine, SaysInOneLineWhyNoWindowCanBeOpened) {
    unsetenv("DISPLAY");
    struct {
        std::string width;
        char const* line;
        // clang-format off
    } const rows[] = {
        {"0",           "Cannot open a window of 0x0 pixels.\n"},
        {"1",           "Cannot open a window of 1x0 pixels.\n"},
        {"-5",          "Cannot open a window of -5x-3 pixels.\n"},
        {"32768",       "Cannot open a window of 32768x24576 pixels.\n"},
        {"99999999999", "Cannot open a window of 2147483647x1610612735 pixels.\n"},
        {"800",         "Cannot open the display. Is DISPLAY set, and an X server running?\n"},
    };
    // clang-format on
    for (auto const& row : rows) {
        char program[] = "hardsilence";
        char option[] = "-width";
        std::string width = row.width;
        char* argv[] = {program, option, width.data(), nullptr};
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        EXPECT_EQ(demo_main(3, argv), 1) << width;
        EXPECT_THAT(testing::internal::GetCapturedStdout(), StartsWith("Using resolution "));
        EXPECT_EQ(testing::internal::GetCapturedStderr(), row.line);
    }
}

TEST_F(CommandLine, LimitsTheFrameRateOnlyWithoutVerticalSync) {
    fps_limit_value = 30;
    EXPECT_EQ(frame_limit(), 0u);
    vsync = false;
    EXPECT_EQ(frame_limit(), 30u);
    fps_limit_value = 0;
    EXPECT_EQ(frame_limit(), 0u);
}

TEST(MyAtoi, ReadsTheNumberAtTheStart) {
    struct {
        char const* text;
        int number;
        // clang-format off
    } const rows[] = {
        {"0",          0},
        {"800",        800},
        {"800abc",     800},
        {"  42",       42},
        {"-7",         -7},
        {"+7",         7},
        {"0x10",       0},
        {"010",        10},
        {"3.9",        3},
        {"2147483647", 2147483647},
        {"",           0},
        {"abc",        0},
        {"-",          0},
    };
    // clang-format on
    for (auto const& row : rows) EXPECT_EQ(my_atoi(row.text), row.number) << row.text;
}

/// Records the calls made to it.
class FakeMusic final : public kore::Music {
public:
    bool LoadFromFile(std::string const& file, int const& frequency) override {
        asked.push_back("load " + file + " at " + std::to_string(frequency));
        return fails;
    }
    void SetVisualizer(std::shared_ptr<kore::MusicVisualizer>) override {}
    void Play() override { asked.push_back("play"); }
    void Pause() override { asked.push_back("pause"); }
    bool Eof() override { return false; }
    bool Ready() override { return ready; }

    bool fails = false;
    bool ready = true;
    std::vector<std::string> asked;
};

class Music : public MainTest {
protected:
    std::string Init() {
        testing::internal::CaptureStdout();
        music_init(music);
        return testing::internal::GetCapturedStdout();
    }
    std::shared_ptr<FakeMusic> fake = std::make_shared<FakeMusic>();
    std::shared_ptr<kore::Music> music = fake;
};

TEST_F(Music, IsLoadedAtTheExpectedRate) {
    EXPECT_EQ(Init(), "");
    EXPECT_THAT(fake->asked, ElementsAre("load data/rump2.ogg at 48000"));
}

TEST_F(Music, IsReportedInOneLineWhenItCannotBeLoaded) {
    fake->fails = true;
    EXPECT_EQ(Init(), "E: main.cpp:95, music_init() Couldn't open music from file data/rump2.ogg\n");
}

TEST_F(Music, IsLeftAloneWhenMuted) {
    music_enabled = false;
    EXPECT_EQ(Init(), "");
    music_play(music, true);
    music_play(music, false);
    EXPECT_THAT(fake->asked, IsEmpty());
}

TEST_F(Music, PlaysAndPausesOnlyWhenReady) {
    music_play(music, true);
    music_play(music, false);
    EXPECT_THAT(fake->asked, ElementsAre("play", "pause"));
    fake->ready = false;
    music_play(music, true);
    music_play(music, false);
    EXPECT_EQ(fake->asked.size(), 2u);
}

} // namespace
