// SPDX-License-Identifier: MIT
// A damaged soundtrack. Plays through OpenAL's null output: CMakeLists.txt sets ALSOFT_DRIVERS.

#include "kore/music-sfml.h"
#include "tests/faults/datafiles.h"
#include "tests/support/temp.h"

#include <SFML/System/Err.hpp>
#include <chrono>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <thread>

namespace fs = std::filesystem;

namespace {

constexpr int rate = 48000; // Hz
constexpr int cuts = 50;
constexpr uid_t nobody = 65534;

class DamagedSoundtrack : public testing::Test {
protected:
    DamagedSoundtrack() { sf::err().rdbuf(nullptr); } // the library's own messages about each file
    ~DamagedSoundtrack() override { sf::err().rdbuf(before); }

    /// Loads it and, whether or not that succeeds, plays for a moment, with a pause.
    /// @return whether it was refused with one line; any other line fails the test
    bool Refused(std::string const& path) {
        testing::internal::CaptureStdout();
        bool refused = false;
        {
            kore::MusicSFML music;
            refused = music.LoadFromFile(path, rate);
            music.Play();
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
            music.Pause();
            EXPECT_GE(music.Position(), 0);
            music.Play();
        }
        EXPECT_EQ(testing::internal::GetCapturedStdout(),
                  refused ? "E: kore/music-sfml.cpp:36, LoadFromFile() Failed to open music from file " + path + "\n"
                          : "");
        return refused;
    }

    std::string const whole = support::read_all("data/rump2.ogg");
    support::TempFolder const temp;

private:
    std::streambuf* const before = sf::err().rdbuf();
};

TEST_F(DamagedSoundtrack, IsRefusedWhereItIsNoFileToReadOrNoMusic) {
    std::minstd_rand generator(1);
    ASSERT_FALSE(Refused(temp.Write("whole.ogg", whole)));
    fs::create_directory(temp.Path("folder.ogg"));
    EXPECT_TRUE(Refused(temp.Path("missing.ogg")));
    EXPECT_TRUE(Refused(temp.Path("folder.ogg")));
    EXPECT_TRUE(Refused(temp.Write("empty.ogg", "")));
    EXPECT_TRUE(Refused(temp.Write("noise.ogg", faults::noise(100000, generator))));
    EXPECT_TRUE(Refused("data/torus2.asc"));
}

TEST_F(DamagedSoundtrack, IsRefusedWhereItMayNotBeRead) {
    std::string const path = temp.Write("secret.ogg", whole);
    chmod(path.c_str(), 0);
    bool const root = geteuid() == 0;
    if (root && seteuid(nobody) != 0) GTEST_SKIP() << "root may read every file, and cannot become nobody here";
    EXPECT_TRUE(Refused(path));
    if (root) {
        EXPECT_EQ(seteuid(0), 0);
    }
}

TEST_F(DamagedSoundtrack, OpensWhereItIsCutAnywhereBehindItsHeaders) {
    int playable = 0;
    for (int cut = 0; cut < cuts; ++cut) {
        std::size_t const size = cut < 10 ? std::size_t(cut) * 500 : whole.size() * std::size_t(cut) / cuts;
        SCOPED_TRACE(size);
        playable += !Refused(temp.Write("cut.ogg", whole.substr(0, size)));
    }
    EXPECT_GE(playable, cuts - 10) << "the first pages hold all that is needed to begin";
    EXPECT_LT(playable, cuts);
}

TEST_F(DamagedSoundtrack, SurvivesWrongBytes) {
    for (unsigned int seed = 1; seed <= cuts; ++seed) {
        SCOPED_TRACE(seed);
        std::minstd_rand generator(seed);
        std::string bytes = whole;
        std::size_t const reach = seed % 2 ? 8192 : bytes.size(); // the headers, or anywhere
        for (int i = 0; i < 40; ++i) bytes[generator() % reach] = static_cast<char>(generator() >> 8);
        Refused(temp.Write("wrong.ogg", bytes));
    }
}

} // namespace
