// SPDX-License-Identifier: MIT
// Farms that something happens to: nothing is lost, and nothing wrong is joined.

#include "tests/tools/farm/farmland.h"

#include <chrono>
#include <csignal>
#include <filesystem>
#include <gmock/gmock.h>
#include <unistd.h>

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using support::Outcome;
using support::read_all;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

namespace {

/// One worker, so that it is known which chunk is drawn when.
class FarmFaults : public FarmTest {
protected:
    std::string const film = std::string("--local --workers 1 --out film.mkv ") + small_film;

    /// Makes the film, or goes on with it, and expects it to be right.
    void ExpectFilm() {
        Outcome const outcome = Farm(film);
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(outcome.error, "");
        if (!fs::exists(In("whole.mkv"))) Record("whole.mkv");
        ExpectSame("film.mkv", "whole.mkv");
    }

    void ExpectRefused(Outcome const& outcome, std::string const& line) const {
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.error, "farm: " + line + "\n");
        EXPECT_FALSE(fs::exists(In("film.mkv")));
    }
};

} // namespace

TEST_F(FarmFaults, GoesOnAfterItWasStopped) {
    int done = 0;
    for (auto const& [signal, status] : {std::pair(SIGINT, 130), {SIGTERM, 143}, {SIGHUP, 129}}) {
        auto const farm = Start(film);
        ASSERT_TRUE(Comes("film.mkv.farm/0000" + std::to_string(done++) + ".sum"));
        farm->Signal(signal);
        EXPECT_EQ(farm->Wait(10s), status);
        EXPECT_EQ(farm->Error(),
                  "farm: stopped; the same command goes on with what is done, in " + In("film.mkv.farm") + "\n");
        EXPECT_FALSE(fs::exists(In("film.mkv")));
        EXPECT_EQ(Shell("pgrep -f '" + In("[r]ecorder") + "'").output, "") << "no worker is left";
    }
    auto const before = Drawn();
    ExpectFilm();
    auto const after = Drawn();
    EXPECT_THAT(before, testing::Contains(300));
    EXPECT_THAT(after, testing::Not(testing::Contains(300))) << "the first chunk was done";
    EXPECT_THAT(after, testing::Contains(360)) << "the last was not";
}

TEST_F(FarmFaults, GoesOnAfterItWasKilled) {
    auto const farm = Start(film);
    ASSERT_TRUE(Comes("film.mkv.farm/00000.sum"));
    farm->Signal(SIGKILL);
    ASSERT_EQ(farm->Wait(10s), 128 + SIGKILL);
    EXPECT_TRUE(fs::exists(In("film.mkv.farm/lock"))) << "which is taken over";
    ExpectFilm();
    EXPECT_FALSE(fs::exists(In("film.mkv.farm/lock")));
}

TEST_F(FarmFaults, DrawsAChunkAgainWhoseWorkerIsKilled) {
    // The worker's process is named in the path of what it draws.
    Fault(R"sh(if [ -n "$part" ] && once killed; then
        kill -9 "$(echo "$part" | sed 's/.*part[.][^.]*[.]//; s/[.].*//')"
        exit 1
    fi)sh");
    ExpectFilm();
    EXPECT_TRUE(fs::exists(In("once-killed")));
    EXPECT_THAT(Drawn(), ElementsAre(300, 300, 320, 340, 360));
}

TEST_F(FarmFaults, DrawsAChunkAgainWhoseRecorderDies) {
    Fault(R"sh([ -z "$part" ] || ! once died || { "$real" "$@" & sleep 0.3; kill -9 $!; exit 137; })sh");
    ExpectFilm();
    EXPECT_TRUE(fs::exists(In("once-died")));
    EXPECT_THAT(Drawn(), ElementsAre(300, 300, 320, 340, 360));
}

TEST_F(FarmFaults, KeepsNoChunkThatIsShort) {
    Fault(R"sh(case "$*" in *--md5*300:320*) set -- $(echo "$*" | sed 's/300:320/300:319/') ;; esac)sh");
    ExpectRefused(Farm(film), "chunk 0, frames 300:320, is not done: farm: not 20 frames");
    EXPECT_FALSE(fs::exists(In("film.mkv.farm/00000.mkv")));
    EXPECT_THAT(Drawn(), ElementsAre(300, 300, 300, 320, 340, 360)) << "all others are done";
    fs::remove(In("fault"));
    ExpectFilm();
    EXPECT_THAT(Drawn(), ElementsAre(300));
}

TEST_F(FarmFaults, KeepsNoChunkThatIsNotWhatWasDrawn) {
    // The film of other frames, beside the digests of the right ones.
    Fault(R"sh(case "$part" in *00001*)
        look="--size 64x48 --samples 0"
        "$real" --film "$part" --no-sound --frames 321:341 $look >/dev/null
        set -- --md5 --frames 320:340 $look ;; esac)sh");
    ExpectRefused(Farm(film), "chunk 1, frames 320:340, is not done: farm: the file differs from what was drawn");
    fs::remove(In("fault"));
    Drawn();
    ExpectFilm();
    EXPECT_THAT(Drawn(), ElementsAre(320));
}

TEST_F(FarmFaults, DrawsAgainWhatWasDamagedSince) {
    ExpectFilm();
    Drawn();
    std::string const chunk = "film.mkv.farm/0000";
    fs::resize_file(In(chunk + "0.mkv"), fs::file_size(In(chunk + "0.mkv")) / 2);
    std::string bytes = read_all(In(chunk + "1.mkv"));
    bytes[bytes.size() / 2] ^= 1;
    folder.Write(chunk + "1.mkv", bytes);
    bytes = read_all(In(chunk + "2.md5"));
    bytes[bytes.size() - 2] ^= 1; // the last digest
    folder.Write(chunk + "2.md5", bytes);
    fs::resize_file(In(chunk + "3.sum"), 20);
    ExpectFilm();
    EXPECT_THAT(Drawn(), ElementsAre(300, 320, 340, 360));
}

TEST_F(FarmFaults, OneFarmAtATimeWorksInAFolder) {
    auto const farm = Start(film);
    ASSERT_TRUE(Comes("film.mkv.farm/lock"));
    Outcome const second = Farm(film);
    std::string const holder = read_all(In("film.mkv.farm/lock"));
    EXPECT_EQ(second.status, 1);
    EXPECT_THAT(second.error, StartsWith("farm: a farm works in " + In("film.mkv.farm") + " already: process "));
    EXPECT_THAT(second.error, EndsWith("; if it does not, remove " + In("film.mkv.farm/lock") + "\n"));
    EXPECT_THAT(second.error, HasSubstr(" on " + Shell("printf %s $(hostname)").output + ";"));
    EXPECT_EQ(farm->Wait(60s), 0) << farm->Error();
    EXPECT_THAT(Drawn(), ElementsAre(300, 320, 340, 360));
    Record("whole.mkv");
    ExpectSame("film.mkv", "whole.mkv");
}

TEST_F(FarmFaults, LeavesALockOfAnotherMachineAlone) {
    fs::create_directories(In("film.mkv.farm"));
    folder.Write("film.mkv.farm/lock", "far-away 12 345\n");
    ExpectRefused(Farm(film), "a farm works in " + In("film.mkv.farm") +
                                  " already: process 12 on far-away; if it does not, remove " +
                                  In("film.mkv.farm/lock"));
    EXPECT_EQ(read_all(In("film.mkv.farm/lock")), "far-away 12 345\n");
    fs::remove(In("film.mkv.farm/lock"));
    ExpectFilm();
}

TEST_F(FarmFaults, ALockWhoseProcessIsAnotherByNowIsNone) {
    fs::create_directories(In("film.mkv.farm"));
    folder.Write("film.mkv.farm/lock", Shell("echo $(hostname) " + std::to_string(getpid()) + " 1").output);
    ExpectFilm();
}

TEST_F(FarmFaults, AFolderIsForOneFilm) {
    ASSERT_EQ(Farm(film).status, 0);
    fs::rename(In("film.mkv"), In("first.mkv"));
    std::string const other = "--local --out film.mkv --folder film.mkv.farm ";
    std::string const begin = In("film.mkv.farm") + " holds another film, which differs in: ";
    std::pair<std::string, std::string> const cases[] = {
        {"--frames 300:360 --chunk 20", "end"},
        {"--frames 300:380 --chunk 40", "chunk"},
        {"--frames 300:380 --chunk 20 --calm", "look"},
        {"--frames 300:380 --chunk 20 --fps 50", "rate"},
    };
    for (auto const& [arguments, what] : cases) ExpectRefused(Farm(other + arguments), begin + what + "; see --folder");
    folder.Write("recorder", read_all(In("recorder")) + "# a new build\n");
    ExpectRefused(Farm(film), begin + "made_by; see --folder");
}

TEST_F(FarmFaults, WorkersWithOtherProgramsAreRefused) {
    Fault(R"sh([ -z "$part" ] || ! once changed || echo "# a new build" >>"$0")sh");
    Outcome const outcome = Farm(film);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.error,
              "farm: chunk 1, frames 320:340, is not done: farm: recorder, data or ffmpeg differ from those "
              "that the film was begun with\n");
}

TEST_F(FarmFaults, WorkersWithOtherDriversAreRefused) {
    // Frame 340, by which they are known, is another one once a chunk has been drawn.
    Fault(R"sh([ -z "$part" ] || once drawn
        case "$*" in *"--md5 --frames 340:341") [ ! -d "$here/once-drawn" ] ||
            set -- --md5 --frames 341:342 --size 64x48 --samples 0 ;; esac)sh");
    Outcome const outcome = Farm(film);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.error, "farm: chunk 1, frames 320:340, is not done: farm: the driver of this machine draws other "
                             "pictures than that of the first\n");
    EXPECT_FALSE(fs::exists(In("film.mkv")));
}

TEST_F(FarmFaults, GoesOnAfterTheDiskWasFull) {
    if (Shell("unshare -m true || unshare -rm true").status != 0)
        GTEST_SKIP() << "needs a small disk, which root mounts";
    fs::create_directory(In("disk"));
    std::string const farm = Command(film + "--folder disk/farm --out disk/film.mkv");
    Outcome const outcome = Shell("cat >script <<'END'\n"
                                  "mount -t tmpfs -o size=100k none disk || exit 9\n" +
                                  farm +
                                  "; echo \"status $?\"\n"
                                  "ls -A disk\n"
                                  "mount -o remount,size=50m none disk\n" +
                                  farm +
                                  "; echo \"status $?\"\n"
                                  "cp disk/film.mkv film.mkv\n"
                                  "END\n"
                                  "unshare $(unshare -m true 2>/dev/null || echo -r) -m sh script");
    EXPECT_THAT(outcome.output, StartsWith("status 1\nfarm\n")) << "no film";
    EXPECT_THAT(outcome.output, EndsWith(In("disk/film.mkv") + "\nstatus 0\n"));
    EXPECT_THAT(outcome.error,
                testing::ContainsRegex("^farm: chunk [0-9].*, is not done: .*No space left on device\n$"));
    auto const drawn = Drawn();
    EXPECT_EQ(std::count(drawn.begin(), drawn.end(), 300), 1) << "what fitted was kept";
    Record("whole.mkv");
    ExpectSame("film.mkv", "whole.mkv");
}
