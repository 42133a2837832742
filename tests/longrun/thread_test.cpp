// SPDX-License-Identifier: MIT
// Playing, pausing and ending the music as fast as possible, while another thread streams it. The preset `tsan` runs
// this under ThreadSanitizer.

#include "kore/music-sfml.h"
#include "tests/support/sounddevice.h"
#include "tests/support/temp.h"

#include <SFML/Audio/OutputSoundFile.hpp>
#include <chrono>
#include <gtest/gtest.h>
#include <memory>
#include <random>
#include <thread>
#include <vector>

namespace {

constexpr unsigned int sample_rate = 48000;

void wait(int milliseconds) { std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds)); }

class MusicThread : public testing::Test {
protected:
    void SetUp() override {
        if (!support::sound_device_available()) GTEST_SKIP() << "no sound device, not even OpenAL's null output";
    }

    /// @return a player of that much silence
    std::unique_ptr<kore::MusicSFML> Load(int milliseconds) const {
        std::string const path = temp.Path("silence.wav");
        {
            sf::OutputSoundFile file;
            EXPECT_TRUE(file.openFromFile(path, sample_rate, 1));
            std::vector<sf::Int16> const samples(static_cast<std::size_t>(milliseconds) * sample_rate / 1000);
            file.write(samples.data(), samples.size());
        }
        auto music = std::make_unique<kore::MusicSFML>();
        EXPECT_FALSE(music->LoadFromFile(path, static_cast<int>(sample_rate)));
        return music;
    }

    support::TempFolder const temp;
};

TEST_F(MusicThread, PlaysAndPausesInQuickSuccession) {
    constexpr int presses = 300;
    auto const music = Load(20000);
    std::mt19937 random; // the same pauses each time
    for (int i = 0; i < presses; ++i) {
        i % 2 == 0 ? music->Play() : music->Pause();
        ASSERT_GE(music->Position(), 0);
        ASSERT_LT(music->Position(), 20);
        if (random() % 4 == 0) wait(static_cast<int>(random() % 12));
    }
    music->Play();
    wait(300);
    music->Pause();
    wait(50);
    float const paused = music->Position();
    EXPECT_GT(paused, 0);
    wait(100);
    EXPECT_EQ(music->Position(), paused);
}

TEST_F(MusicThread, EndsAndMayBeAskedForMore) {
    auto const music = Load(300);
    music->Play();
    wait(150);
    EXPECT_GT(music->Position(), 0);
    wait(1000);
    EXPECT_EQ(music->Position(), 0) << "the stream goes back to its start when it ends";
    music->Pause(); // what the show does when it ends
    EXPECT_EQ(music->Position(), 0);
    music->Play();
    wait(50);
    EXPECT_LT(music->Position(), 0.3f);
    music->Pause();
}

TEST_F(MusicThread, GoesAwayInAnyState) {
    Load(1000);
    Load(1000)->Play();
    auto const pausing = Load(1000);
    pausing->Play();
    wait(20);
    pausing->Pause();
    auto ending = Load(100);
    ending->Play();
    wait(600);
    EXPECT_EQ(ending->Position(), 0);
    ending.reset();
    auto loaded_again = Load(1000);
    loaded_again->Play();
    EXPECT_TRUE(loaded_again->LoadFromFile("no/such.ogg", static_cast<int>(sample_rate)));
    loaded_again->Play();
    EXPECT_EQ(loaded_again->Position(), 0);
}

#ifdef __SANITIZE_THREAD__
int shared = 0;

void race() {
    std::thread other([] { ++shared; });
    ++shared;
    other.join();
    std::exit(0);
}

TEST(ThreadSanitizer, SeesARace) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_EXIT(race(), testing::ExitedWithCode(66), "data race");
}
#endif

} // namespace
