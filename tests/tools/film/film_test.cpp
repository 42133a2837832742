// Films as the recorder makes them: its streams, its files and its messages. Small pictures of one sample, so that it
// is quick.

#include "tests/support/command.h"
#include "tests/support/temp.h"

#include <SFML/Audio/InputSoundFile.hpp>
#include <filesystem>
#include <gmock/gmock.h>
#include <random>
#include <sstream>

namespace fs = std::filesystem;
using support::Outcome;

namespace {

constexpr std::size_t frame_bytes = std::size_t{3} * 64 * 48;

class Film : public testing::Test {
protected:
    /// Runs the recorder in a folder of its own.
    Outcome Record(std::string const& arguments, std::vector<std::string> const& environment = {}) const {
        return support::run_shell("'" HARDSILENCE_BINARY_DIR "/hardsilence-record' --size 64x48 --samples 0 " +
                                      arguments,
                                  {.folder = folder.Path(""), .environment = environment});
    }

    /// The digest of each frame, with its number.
    std::vector<std::string> Digests(std::string const& arguments) const {
        Outcome const outcome = Record("--md5 " + arguments);
        EXPECT_EQ(outcome.status, 0) << arguments;
        EXPECT_EQ(outcome.error, "");
        return Lines(outcome.output);
    }

    /// Those of a file, as ffmpeg prints them; it counts from 0.
    std::vector<std::string> DigestsOf(std::string const& file) const {
        return Lines(Shell("ffmpeg -v error -i " + file + " -map 0:v -pix_fmt rgb24 -f framemd5 -").output);
    }

    Outcome Shell(std::string const& line) const { return support::run_shell(line, {.folder = folder.Path("")}); }

    std::string In(std::string const& file) const { return folder.Path(file); }

    static std::vector<std::string> Lines(std::string const& text) {
        std::istringstream stream(text);
        std::vector<std::string> lines;
        for (std::string line; std::getline(stream, line);) {
            if (!line.starts_with('#')) lines.push_back(line);
        }
        return lines;
    }

    support::TempFolder const folder;
};

/// The digest alone, without the frame's number.
std::string digest(std::string const& line) { return line.substr(line.rfind(' ') + 1); }

/// Both channels of a sound, in turn.
/// @param from, count  samples of one channel
std::vector<sf::Int16> samples(std::string const& file, std::size_t from, std::size_t count) {
    sf::InputSoundFile sound;
    if (!sound.openFromFile(file)) return {};
    std::vector<sf::Int16> all((from + count) * 2);
    all.resize(sound.read(all.data(), all.size()));
    all.erase(all.begin(), all.begin() + static_cast<long>(std::min(all.size(), from * 2)));
    return all;
}

} // namespace

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

TEST_F(Film, DigestsAreThoseOfTheBarePixels) {
    Outcome const raw = Record("--raw - --frames 340:343");
    EXPECT_EQ(raw.status, 0);
    EXPECT_EQ(raw.error, "");
    ASSERT_EQ(raw.output.size(), 3 * frame_bytes);
    auto const digests = Digests("--frames 340:343");
    for (std::size_t i = 0; i < 3; ++i) {
        folder.Write("frame", raw.output.substr(i * frame_bytes, frame_bytes));
        std::string const number = "34" + std::to_string(i);
        EXPECT_EQ(digests.at(i), "0,        " + number + ",        " + number + ",        1,     9216, " +
                                     Shell("md5sum <frame").output.substr(0, 32));
    }
}

TEST_F(Film, PixelsAreThoseOfThePictures) {
    std::string const raw = Record("--raw - --from 12.4 --to 12.44").output;
    ASSERT_EQ(raw.size(), frame_bytes);
    ASSERT_EQ(Record("--beats 12.4 --out .").status, 0);
    EXPECT_TRUE(Shell("ffmpeg -v error -i beat_012.400.png -f rawvideo -pix_fmt rgb24 -").output == raw);
}

TEST_F(Film, StreamsAsY4m) {
    Outcome const outcome = Record("--y4m - --frames 340:342 --fps 60000/1001");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.error, "");
    std::string const header = "YUV4MPEG2 W64 H48 F60000:1001 Ip A1:1 C444 XCOLORRANGE=LIMITED\n";
    EXPECT_TRUE(outcome.output.starts_with(header + "FRAME\n"));
    EXPECT_EQ(outcome.output.size(), header.size() + 2 * (6 + frame_bytes));
    folder.Write("film.y4m", outcome.output);
    EXPECT_EQ(DigestsOf("film.y4m").size(), 2u) << "another program reads it";
}

TEST_F(Film, LosslessHasEveryPixelAndEverySample) {
    Outcome const outcome = Record("--film part.mkv --frames 300:340");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, In("part.mkv") + "\n");
    EXPECT_EQ(outcome.error, "");
    auto const film = DigestsOf("part.mkv");
    auto const direct = Digests("--frames 300:340");
    ASSERT_EQ(film.size(), direct.size());
    for (std::size_t i = 0; i < film.size(); ++i) EXPECT_EQ(digest(film[i]), digest(direct[i])) << i;

    ASSERT_EQ(Shell("ffmpeg -v error -i part.mkv -map 0:a part.wav").status, 0);
    auto const sound = samples(In("part.wav"), 0, 48000);
    auto const expected = samples(HARDSILENCE_SOURCE_DIR "/data/rump2.ogg", 300 * 800, 40 * 800);
    ASSERT_EQ(sound.size(), expected.size());
    int most = 0;
    int loudest = 0;
    for (std::size_t i = 0; i < sound.size(); ++i) {
        most = std::max(most, std::abs(sound[i] - expected[i]));
        loudest = std::max(loudest, std::abs(expected[i]));
    }
    EXPECT_LE(most, 1) << "two decoders round differently";
    EXPECT_GT(loudest, 1000);
}

TEST_F(Film, CanBeSilent) {
    ASSERT_EQ(Record("--film part.mkv --frames 300:310 --no-sound").status, 0);
    EXPECT_EQ(Shell("ffprobe -v error -show_entries stream=codec_name -of csv=p=0 part.mkv").output, "ffv1\n");
}

TEST_F(Film, HoldsTheLastPictureToTheEndOfTheMusic) {
    auto const end = Digests("--frames 10465:");
    ASSERT_EQ(end.size(), 10712u - 10465u); // 178.52 seconds
    EXPECT_TRUE(end[7].starts_with("0,      10472,")) << "the last frame before 384 beats have passed";
    for (std::size_t i = 8; i < end.size(); ++i) EXPECT_EQ(digest(end[i]), digest(end[7]));
    EXPECT_NE(digest(end[6]), digest(end[7]));
}

TEST_F(Film, FaultsGetOneLineAndStatusOne) {
    folder.Write("file", "in the way");
    std::pair<std::string, std::string> const cases[] = {
        {"--md5 --frames 10712:", "there is no frame 10712: the film has 10712, counted from 0"},
        {"--md5 --scene finale", "no scene is called 'finale'; there are intro, gungirl, swapper, credits, tunnelgate, "
                                 "plasma, fountain, greets"},
        {"--film file/a.mkv --to 1", "cannot write " + In("file/a.mkv") + ": Not a directory"},
        {"--film a.mkv --to 1 --encoder '-c:v nothing'", "ffmpeg: Unknown encoder 'nothing'"},
    };
    for (auto const& [arguments, line] : cases) {
        SCOPED_TRACE(arguments);
        Outcome const outcome = Record(arguments);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.error, "hardsilence-record: " + line + "\n");
        EXPECT_EQ(outcome.output, "");
    }
    for (fs::directory_entry const& entry : fs::directory_iterator(In(""))) {
        EXPECT_EQ(entry.path().filename(), "file") << "nothing is left behind";
    }
}
