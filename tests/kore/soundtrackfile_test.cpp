// SPDX-License-Identifier: MIT
#include "kore/soundtrackfile.h"

#include "tests/support/temp.h"
#include "tests/support/wave.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

std::string little(std::uint32_t number, int bytes) {
    std::string text;
    for (int i = 0; i < bytes; ++i) text += static_cast<char>(number >> 8 * i & 255U);
    return text;
}

/// The first page of an Ogg Vorbis file, with as many segments as that.
std::string vorbis(unsigned int channels, unsigned int rate, int segments = 1) {
    return "OggS" + std::string(22, '\0') + static_cast<char>(segments) + std::string(std::size_t(segments), '\x1e') +
           "\1vorbis" + little(0, 4) + little(channels, 1) + little(rate, 4) + std::string(14, '\0');
}

std::string flac(unsigned int channels, unsigned int rate) {
    std::uint32_t const packed = rate << 4U | (channels - 1) << 1U;
    std::string const big = {static_cast<char>(packed >> 16U & 255U), static_cast<char>(packed >> 8U & 255U),
                             static_cast<char>(packed & 255U)};
    return "fLaC" + std::string({'\0', '\0', '\0', '\x22'}) + std::string(10, '\0') + big + std::string(20, '\0');
}

struct Row {
    char const* name;
    std::string head;
    bool is;
};

TEST(SoundtrackFile, IsKnownByItsHeader) {
    Row const rows[] = {
        {"vorbis", vorbis(2, 48000), true},
        {"vorbis with more segments", vorbis(1, 44100, 3), true},
        {"vorbis, eight channels", vorbis(8, 192000), true},
        {"vorbis, nine", vorbis(9, 48000), false},
        {"vorbis, none", vorbis(0, 48000), false},
        {"vorbis, slow", vorbis(2, 3999), false},
        {"vorbis, fast", vorbis(2, 192001), false},
        {"vorbis, cut", vorbis(2, 48000).substr(0, 38), false},
        {"ogg of something else", "OggS" + std::string(60, '\0'), false},
        {"flac", flac(2, 48000), true},
        {"flac, slow", flac(2, 100), false},
        {"flac, another block first", "fLaC\1" + std::string(60, '\x20'), false},
        {"wave", support::wave(48000, 10), true},
        {"wave, 65535 channels", support::wave(48000, 10, 65535), false},
        {"wave, no channel", support::wave(48000, 10, 0), false},
        {"wave, no rate", support::wave(0, 10), false},
        {"wave, cut", support::wave(48000, 10).substr(0, 20), false},
        {"wave, without a format", "RIFF" + little(4, 4) + "WAVE", false},
        {"wave, another part first",
         "RIFF" + little(4, 4) + "WAVELIST" + little(3, 4) + "abc " + support::wave(8000, 1).substr(12), true},
        {"wave, a part of 4 GB", "RIFF" + little(4, 4) + "WAVELIST" + little(0xffffffff, 4) + "fmt ", false},
        {"empty", "", false},
        {"noughts", std::string(100, '\0'), false},
    };
    for (Row const& row : rows) EXPECT_EQ(kore::is_soundtrack(row.head), row.is) << row.name;
}

TEST(SoundtrackFile, IsRegularAndWithinTheLimits) {
    support::TempFolder const temp;
    std::string const good = temp.Write("good.wav", support::wave(48000, 10));
    EXPECT_TRUE(kore::may_be_soundtrack(good));
    EXPECT_TRUE(kore::may_be_soundtrack(HARDSILENCE_SOURCE_DIR "/data/rump2.ogg"));
    EXPECT_FALSE(kore::may_be_soundtrack(temp.Path("none")));
    EXPECT_FALSE(kore::may_be_soundtrack(temp.Write("empty", "")));
    EXPECT_FALSE(kore::may_be_soundtrack(temp.Path("")));
    EXPECT_FALSE(kore::may_be_soundtrack("/dev/zero"));
    ASSERT_EQ(mkfifo(temp.Path("pipe").c_str(), 0600), 0);
    EXPECT_FALSE(kore::may_be_soundtrack(temp.Path("pipe"))); // and it does not wait for a writer
    fs::resize_file(good, kore::soundtracklimits::most_bytes);
    EXPECT_TRUE(kore::may_be_soundtrack(good));
    fs::resize_file(good, kore::soundtracklimits::most_bytes + 1);
    EXPECT_FALSE(kore::may_be_soundtrack(good));
}

} // namespace
