// SPDX-License-Identifier: MIT
// Plays through OpenAL's null output, which is silent and keeps time: CMakeLists.txt sets ALSOFT_DRIVERS.

#include "kore/music-sfml.h"
#include "kore/musicvisualizer.h"
#include "tests/support/sounddevice.h"
#include "tests/support/temp.h"
#include "tests/support/wave.h"

#include <chrono>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <thread>

namespace {

constexpr int expected_rate = 48000;

class MusicSFML : public testing::Test {
protected:
    bool Load(std::string const& path) {
        testing::internal::CaptureStdout();
        bool const failed = music.LoadFromFile(path, expected_rate);
        printed = testing::internal::GetCapturedStdout();
        return failed;
    }

    static void Wait(int milliseconds) { std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds)); }

    support::TempFolder const temp;
    kore::MusicSFML music;
    std::string printed;
};

TEST_F(MusicSFML, PrintsNothingAboutAFileAtTheExpectedRate) {
    EXPECT_FALSE(Load(temp.Write("a.wav", support::wave(48000, 4800))));
    EXPECT_EQ(printed, "");
}

TEST_F(MusicSFML, ReportsAMissingFileInOneLine) {
    EXPECT_TRUE(Load("no/such.ogg"));
    EXPECT_EQ(printed, "E: kore/music-sfml.cpp:36, LoadFromFile() Failed to open music from file no/such.ogg\n");
}

TEST_F(MusicSFML, ReportsAFileThatIsNotMusic) {
    EXPECT_TRUE(Load("tests/data/good.asc"));
    EXPECT_THAT(printed, testing::HasSubstr("Failed to open music from file tests/data/good.asc\n"));
}

TEST_F(MusicSFML, ReportsAnotherRateAndPlaysItAllTheSame) {
    EXPECT_TRUE(Load(temp.Write("a.wav", support::wave(44100, 44100))));
    EXPECT_EQ(printed, "E: kore/music-sfml.cpp:48, LoadFromFile() Requested frequency (48000) differs from audio file "
                       "frequency (44100).\n");
    if (!support::sound_device_available()) GTEST_SKIP() << "no sound device, not even OpenAL's null output";
    music.Play();
    Wait(250);
    EXPECT_GT(music.Position(), 0);
}

TEST_F(MusicSFML, GoesOnWhereItWasPaused) {
    if (!support::sound_device_available()) GTEST_SKIP() << "no sound device, not even OpenAL's null output";
    Load(temp.Write("a.wav", support::wave(48000, 10 * 48000)));
    EXPECT_EQ(music.Position(), 0);
    music.Play();
    Wait(250);
    music.Pause();
    Wait(50);
    float const paused = music.Position();
    EXPECT_GT(paused, 0);
    Wait(250);
    EXPECT_EQ(music.Position(), paused);
    music.Play();
    Wait(250);
    EXPECT_GT(music.Position(), paused);
    EXPECT_LT(music.Position(), paused + 2); // and not from elsewhere
}

TEST_F(MusicSFML, IsAlwaysReadyAndNeverAtItsEnd) {
    EXPECT_TRUE(music.Ready());
    Load("no/such.ogg");
    EXPECT_TRUE(music.Ready());
    EXPECT_FALSE(music.Eof());
    Load(temp.Write("short.wav", support::wave(48000, 480)));
    music.Play();
    Wait(200);
    EXPECT_TRUE(music.Ready());
    EXPECT_FALSE(music.Eof());
}

TEST_F(MusicSFML, PlaysNothingWhereNothingWasOpened) {
    music.Play();
    music.Pause();
    Load("no/such.ogg");
    testing::internal::CaptureStderr();
    music.Play();
    Wait(50);
    music.Pause();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(music.Position(), 0);
}

class CountingVisualizer final : public kore::MusicVisualizer {
public:
    void Process(char const*, unsigned int) override { ++calls; }
    float const* GetOutput() const override { return nullptr; }
    int calls = 0;
};

TEST_F(MusicSFML, HoldsOneVisualizerAndNeverFeedsIt) {
    auto first = std::make_shared<CountingVisualizer>();
    auto second = std::make_shared<CountingVisualizer>();
    music.SetVisualizer(first);
    EXPECT_EQ(first.use_count(), 2);
    music.SetVisualizer(second);
    EXPECT_EQ(first.use_count(), 1);
    Load(temp.Write("a.wav", support::wave(48000, 48000)));
    music.Play();
    Wait(100);
    EXPECT_EQ(second->calls, 0);
    music.Cleanup();
    EXPECT_EQ(second.use_count(), 1);
}

TEST(SoundDevice, IsReportedMissingInOneLineAndTheShowIsSilent) {
    if (support::sound_device_available())
        GTEST_SKIP() << "there is a sound device: no_sound_test runs this without one";
    support::TempFolder const temp;
    testing::internal::CaptureStderr();
    kore::MusicSFML music;
    EXPECT_FALSE(music.LoadFromFile(temp.Write("a.wav", support::wave(48000, 4800)), expected_rate));
    music.Play();
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    music.Pause();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "No sound device; the show is silent.\n");
    EXPECT_EQ(music.Position(), 0);
}

} // namespace
