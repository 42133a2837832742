// SPDX-License-Identifier: MIT
// Plays the show's own soundtrack through OpenAL's null output, which is silent and keeps time.

#include "kore/music-sfml.h"
#include "kore/readfile.h"
#include "tests/support/temp.h"

#include <SFML/System/Clock.hpp>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <numeric>
#include <thread>
#include <vector>

namespace {

constexpr char const* soundtrack = "data/rump2.ogg";
constexpr int rate = 48000; // Hz

std::string contents(char const* path) {
    kore::FileText file;
    EXPECT_TRUE(kore::read_file(path, file));
    return std::string(file.View());
}

double mean(std::vector<double> const& values) {
    return std::accumulate(values.begin(), values.end(), 0.0) / static_cast<double>(values.size());
}

/// How far the show's clock is ahead of the playing position, seconds: means over stretches of that many seconds.
std::vector<double> offsets(kore::MusicSFML& music, int seconds_each, int count) {
    std::vector<double> means;
    music.Play();
    sf::Clock clock; // as the program starts it: right after the music
    for (int i = 0; i < count; ++i) {
        std::vector<double> samples;
        while (clock.getElapsedTime().asSeconds() < static_cast<float>((i + 1) * seconds_each)) {
            // The position moves in steps of about 23 ms; samples at irregular times cover a step evenly.
            std::this_thread::sleep_for(std::chrono::milliseconds(7));
            samples.push_back(clock.getElapsedTime().asSeconds() - music.Position());
        }
        means.push_back(mean(samples));
    }
    return means;
}

TEST(Soundtrack, KeepsStepWithTheShowsClockForAMinute) {
    kore::MusicSFML music;
    ASSERT_FALSE(music.LoadFromFile(soundtrack, rate));
    auto const ahead = offsets(music, 10, 6);
    for (double const offset : ahead) {
        EXPECT_LT(std::abs(offset), 0.030);
        // No drift: the offset of the first ten seconds is that of the last.
        EXPECT_NEAR(offset, ahead.front(), 0.005);
    }
    RecordProperty("first_milliseconds", std::to_string(ahead.front() * 1000));
    RecordProperty("last_milliseconds", std::to_string(ahead.back() * 1000));
    std::cout << "clock ahead of the music by " << ahead.front() * 1000 << " ms at first, " << ahead.back() * 1000
              << " ms at last\n";
}

TEST(Soundtrack, OpensAndPlaysWhereItsFileIsCutShort) {
    support::TempFolder const temp;
    std::string const whole = contents(soundtrack);
    kore::MusicSFML music;
    ASSERT_FALSE(music.LoadFromFile(temp.Write("cut.ogg", whole.substr(0, whole.size() / 20)), rate));
    music.Play();
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    EXPECT_GT(music.Position(), 0);
}

TEST(Soundtrack, IsReportedWhereHardlyAnythingOfItsFileIsLeft) {
    support::TempFolder const temp;
    kore::MusicSFML music;
    testing::internal::CaptureStdout();
    EXPECT_TRUE(music.LoadFromFile(temp.Write("stump.ogg", contents(soundtrack).substr(0, 40)), rate));
    EXPECT_THAT(testing::internal::GetCapturedStdout(), testing::HasSubstr("Failed to open music from file "));
    music.Play(); // nothing to play; must not fail
    EXPECT_EQ(music.Position(), 0);
}

} // namespace
