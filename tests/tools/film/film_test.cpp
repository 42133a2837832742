// SPDX-License-Identifier: MIT
// What the recorder writes of films, and its messages.

#include "tests/support/process.h"
#include "tests/tools/film/filmtest.h"

#include <SFML/Audio/InputSoundFile.hpp>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <gmock/gmock.h>
#include <thread>

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using support::Outcome;
using testing::HasSubstr;

namespace {

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

TEST_F(Film, IsNotMadeOnADiskThatIsFull) {
    std::string const mount = "mount -t tmpfs -o size=40k none . && cd . && ";
    std::string const recorder = "'" HARDSILENCE_BINARY_DIR "/hardsilence-record' --size 64x48 --samples 0 ";
    if (Shell("unshare -rm sh -c '" + mount + "true'").status != 0) GTEST_SKIP() << "needs a small disk";
    folder.Write("script", mount + recorder + "--no-sound --frames 340:360 --film part.mkv; echo $?; ls -A");
    Outcome const outcome = Shell("unshare -rm sh script");
    EXPECT_EQ(outcome.output, "1\n") << "and no file";
    EXPECT_TRUE(outcome.error.starts_with("hardsilence-record: ffmpeg: "));
    EXPECT_TRUE(outcome.error.ends_with(": No space left on device\n")) << outcome.error;
    EXPECT_EQ(std::count(outcome.error.begin(), outcome.error.end(), '\n'), 1);
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
    Refusal const cases[] = {
        {"--md5 --frames 10712:", "there is no frame 10712: the film has 10712, counted from 0"},
        {"--md5 --scene finale", "no scene is called 'finale'; there are intro, gungirl, swapper, credits, tunnelgate, "
                                 "plasma, fountain, greets"},
        {"--film file/a.mkv --to 1", "cannot write " + In("file/a.mkv") + ": Not a directory"},
        {"--film a.mkv --to 1 --encoder '-c:v nothing'", "ffmpeg: Unknown encoder 'nothing'"},
    };
    ExpectRefusals(cases);
}

TEST_F(Film, SaysSoWhereItsOutputIsClosed) {
    for (char const* const stream : {"--raw -", "--y4m -", "--md5"}) {
        std::string const status = In("status");
        Outcome const outcome =
            support::run_shell(std::string("('" HARDSILENCE_BINARY_DIR "/hardsilence-record' --size 640x480 ") +
                               stream + "; echo $? >'" + status + "') | head -c 2000 >'" + In("head") + "'");
        EXPECT_EQ(outcome.error, "hardsilence-record: cannot write to standard output: Broken pipe\n") << stream;
        EXPECT_EQ(support::read_all(status), "1\n");
        EXPECT_EQ(support::read_all(In("head")).size(), 2000u);
    }
}

TEST_F(Film, SaysSoWhereThereIsNoFfmpeg) {
    Outcome const outcome = Record("--film a.mp4 --frames 0:3", {"PATH=/nowhere"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.error,
              "hardsilence-record: ffmpeg, which makes films, is not installed; --raw and --y4m do without\n");
    EXPECT_TRUE(fs::is_empty(In("")));
}

TEST_F(Film, ShowsProgressAndTheWarningOnATerminal) {
    auto const on_terminal = [&](std::string const& arguments) {
        return Shell("script -qec \"'" HARDSILENCE_BINARY_DIR "/hardsilence-record' --size 64x48 --samples 0 " +
                     arguments + "\" /dev/null </dev/null")
            .output;
    };
    std::string const shown = on_terminal("--film a.mkv --frames 0:30");
    EXPECT_THAT(shown, HasSubstr("Warning: this show strobes heavily"));
    EXPECT_THAT(shown, HasSubstr("[########################] 30 of 30 frames"));
    std::string const calm = on_terminal("--film a.mkv --frames 0:30 --calm");
    EXPECT_THAT(calm, testing::Not(HasSubstr("Warning")));
    EXPECT_THAT(calm, HasSubstr("30 of 30 frames"));
    EXPECT_THAT(on_terminal("--md5 --frames 0:3 >/dev/null"), testing::Not(HasSubstr("Warning"))) << "not a film";
}

TEST_F(Film, StopsWithinASecondAndLeavesNothing) {
    for (int const number : {SIGINT, SIGTERM}) {
        folder.Write("a.mp4", "the old film");
        Process recorder({HARDSILENCE_BINARY_DIR "/hardsilence-record", "--film", In("a.mp4"), "--size", "640x480"});
        auto const in_folder = [&] { return std::distance(fs::directory_iterator(In("")), fs::directory_iterator()); };
        for (int i = 0; i < 1000 && in_folder() < 2; ++i) std::this_thread::sleep_for(10ms); // until it films
        std::this_thread::sleep_for(1s);
        ASSERT_TRUE(recorder.Running()) << recorder.Error();
        recorder.Signal(number);
        EXPECT_EQ(recorder.Wait(1s), 128 + number);
        EXPECT_THAT(recorder.Error(),
                    testing::MatchesRegex("hardsilence-record: stopped (before the first frame|after [0-9]+ of 10712 "
                                          "frames; nothing of the film is kept, but tools/farm can go on with a "
                                          "film)\n"));
        EXPECT_EQ(support::read_all(In("a.mp4")), "the old film");
        EXPECT_EQ(in_folder(), 1) << "nothing beside it";
    }
}

TEST_F(Film, ReachesALateFrameByLogicAlone) {
    auto const seconds = [&](std::string const& frames) {
        auto const start = std::chrono::steady_clock::now();
        EXPECT_EQ(Digests("--jobs 1 --frames " + frames).size(), 1u);
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    };
    double const early = seconds("0:1");
    EXPECT_LT(seconds("10000:10001") - early, 1) << "10000 frames are skipped within a second";
}
