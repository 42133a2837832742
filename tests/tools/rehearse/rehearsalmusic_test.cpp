// SPDX-License-Identifier: MIT
// The music of a rehearsal, on OpenAL's null output, which keeps the time.

#include "tools/rehearse/music.h"

#include "show/show.h"
#include "tools/record/beats.h"

#include <SFML/Audio/InputSoundFile.hpp>
#include <chrono>
#include <gtest/gtest.h>
#include <thread>

namespace {

/// How fast the music comes on, over a second.
double speed_of(RehearsalMusic const& music) {
    auto const start = std::chrono::steady_clock::now();
    double const before = music.Position();
    std::this_thread::sleep_for(std::chrono::seconds(1));
    double const after = music.Position();
    std::chrono::duration<double> const seconds = std::chrono::steady_clock::now() - start;
    return (after - before) / seconds.count();
}

} // namespace

TEST(RehearsalMusic, BeginsOnTheSampleOfTheFrame) {
    sf::InputSoundFile file;
    ASSERT_TRUE(file.openFromFile(soundtrack_file));
    for (int frame = 0; frame < frame_at(384 * one_beat); frame += 11) {
        long const sample = frame * 800L; // 48000 Hz
        file.seek(time_of_sample(sample, file.getSampleRate(), file.getChannelCount()));
        ASSERT_EQ(file.getSampleOffset() / file.getChannelCount(), static_cast<sf::Uint64>(sample)) << frame;
    }
}

TEST(RehearsalMusic, PlaysFromAnyFrameOn) {
    RehearsalMusic music;
    ASSERT_EQ(music.Open(soundtrack_file), "");
    EXPECT_TRUE(music.Available());
    EXPECT_FALSE(music.Playing());
    for (int const frame : {600, 6000, 60, 0}) {
        music.PlayFrom(frame, 1);
        EXPECT_TRUE(music.Playing());
        EXPECT_GE(music.Position(), frame / 60.0 - 0.001);
        EXPECT_LE(music.Position(), frame / 60.0 + 0.2);
    }
    music.Pause();
    EXPECT_FALSE(music.Playing());
    music.PlayFrom(1200, 1);
    EXPECT_GE(music.Position(), 19.999);
    EXPECT_LE(music.Position(), 20.2);
}

TEST(RehearsalMusic, IsSlowerAndFasterByItsPitch) {
    RehearsalMusic music;
    ASSERT_EQ(music.Open(soundtrack_file), "");
    for (double const speed : {0.25, 1.0, 2.0}) {
        music.PlayFrom(600, speed);
        EXPECT_NEAR(speed_of(music), speed, 0.2 * speed + 0.03); // told in steps, and a machine may be busy
    }
}

TEST(RehearsalMusic, IsSilentBehindItsEnd) {
    RehearsalMusic music;
    ASSERT_EQ(music.Open(soundtrack_file), "");
    music.PlayFrom(600, 1);
    music.PlayFrom(100000, 1);
    EXPECT_FALSE(music.Playing());
}

TEST(RehearsalMusic, TellsWhyThereIsNone) {
    RehearsalMusic music;
    EXPECT_EQ(music.Open("missing.ogg"), "missing.ogg cannot be played");
    EXPECT_FALSE(music.Available());
    music.PlayFrom(10, 1);
    music.Pause();
    music.Mute(true);
    EXPECT_FALSE(music.Playing());
    EXPECT_EQ(music.Position(), 0);
}
