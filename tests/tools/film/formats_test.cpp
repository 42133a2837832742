// SPDX-License-Identifier: MIT
// Films of every kind, and in parts: what takes longer.

#include "tests/tools/film/filmtest.h"

#include <gmock/gmock.h>
#include <random>

using support::Outcome;
using testing::HasSubstr;

TEST_F(Film, IsTheSameWholeInPartsAndInAnyNumberOfProcesses) {
    std::string const whole = "--from 12 --to 16";
    auto const expected = Digests(whole);
    EXPECT_EQ(expected.size(), 109u);
    EXPECT_EQ(Digests(whole), expected) << "another run";
    EXPECT_EQ(Digests(whole + " --jobs 1"), expected);
    EXPECT_EQ(Digests(whole + " --jobs 3"), expected);
    std::mt19937 random(1);
    std::vector<std::string> parts;
    for (unsigned int from = 328; from < 437;) {
        unsigned int const to = std::min<unsigned int>(437, from + 1 + random() % 40);
        for (std::string const& line : Digests("--frames " + std::to_string(from) + ":" + std::to_string(to))) {
            parts.push_back(line);
        }
        from = to;
    }
    EXPECT_EQ(parts, expected);
}

TEST_F(Film, IsMadeInEveryFormat) {
    // clang-format off
    std::tuple<char const*, char const*, int> const cases[] = {
        {"a.mp4",  "h264,yuv420p\naac\n", 60},
        {"a.mkv",  "ffv1,bgr0\nflac\n",   60},
        {"a.webm", "vp9,yuv420p\nopus\n", 60},
        {"a.gif",  "gif,bgra\n",          25},
    };
    // clang-format on
    for (auto const& [file, streams, rate] : cases) {
        SCOPED_TRACE(file);
        Outcome const outcome = Record(std::string("--scene swapper --to 1 --film ") + file);
        EXPECT_EQ(outcome.status, 0) << outcome.error;
        std::string const probe = std::string("ffprobe -v error -count_frames -of csv=p=0 -show_entries ");
        EXPECT_EQ(Shell(probe + "stream=codec_name,pix_fmt " + file).output, streams);
        auto const frames = Shell(probe + "stream=nb_read_frames -select_streams v " + file).output;
        EXPECT_EQ(frames, rate == 60 ? "27\n" : "11\n") << "beat 64 is frame 1745.45, of 25 a second 727.3";
        EXPECT_EQ(Shell(probe + "stream=r_frame_rate -select_streams v " + file).output, std::to_string(rate) + "/1\n");
    }
    ASSERT_EQ(Record("--scene swapper --to 1 --film a.webp").status, 0);
    std::string const moving = support::read_all(In("a.webp"));
    EXPECT_EQ(moving.substr(8, 4), "WEBP");
    EXPECT_NE(moving.find("ANMF"), std::string::npos) << "an animation";
}

TEST_F(Film, WarnsOfStrobesInItsMetadata) {
    for (char const* const file : {"a.mp4", "a.mkv", "a.webm"}) {
        ASSERT_EQ(Record(std::string("--frames 0:3 --film ") + file).status, 0);
        std::string const tags = Shell(std::string("ffprobe -v error -show_entries format_tags ") + file).output;
        EXPECT_THAT(tags, HasSubstr("Warning: this show strobes heavily")) << file;
        EXPECT_THAT(tags, HasSubstr("Hard Silence")) << file;
    }
}

TEST_F(Film, TakesTheUsersEncoder) {
    ASSERT_EQ(Record("--frames 0:3 --film a.mov --encoder '-c:v prores_ks -c:a pcm_s16le'").status, 0);
    EXPECT_EQ(Shell("ffprobe -v error -show_entries stream=codec_name -of csv=p=0 a.mov").output,
              "prores\npcm_s16le\n");
}

TEST_F(Film, SupersamplesAndKeepsTheShapeOfTheShow) {
    auto const picture = [&](std::string const& more) { return Record("--raw - --frames 1800:1801 " + more).output; };
    std::string const fine = picture("--size 128x96");
    std::string const averaged = picture("--supersample 2");
    ASSERT_EQ(averaged.size(), frame_bytes);
    for (std::size_t y = 0; y < 48; ++y) {
        for (std::size_t i = 0; i < 3 * 64; ++i) {
            auto const at = [&](std::size_t row, std::size_t column) {
                return static_cast<unsigned char>(fine[row * 3 * 128 + column / 3 * 6 + column % 3]);
            };
            auto const beside = [&](std::size_t row) {
                return static_cast<unsigned char>(fine[row * 3 * 128 + i / 3 * 6 + 3 + i % 3]);
            };
            int const sum = at(2 * y, i) + at(2 * y + 1, i) + beside(2 * y) + beside(2 * y + 1);
            ASSERT_EQ(static_cast<unsigned char>(averaged[y * 3 * 64 + i]), (sum + 2) / 4) << y << " " << i;
        }
    }
    std::string const narrow = picture("");
    std::string const wide = picture("--size 80x48");
    std::string const stretched = picture("--size 80x48 --stretch");
    for (std::size_t y = 0; y < 48; ++y) {
        EXPECT_EQ(wide.substr(y * 240, 24), std::string(24, '\0')) << "black beside the show";
        EXPECT_EQ(wide.substr(y * 240 + 24, 192), narrow.substr(y * 192, 192));
        EXPECT_EQ(wide.substr(y * 240 + 216, 24), std::string(24, '\0'));
    }
    EXPECT_NE(stretched.substr(0, 24), std::string(24, '\0'));
}
