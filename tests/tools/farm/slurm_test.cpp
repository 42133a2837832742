// SPDX-License-Identifier: MIT
// Farms on a real Slurm, which the test starts.

#include "tests/tools/farm/cluster.h"
#include "tests/tools/farm/farmland.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <gmock/gmock.h>
#include <thread>

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using support::Outcome;
using testing::ElementsAre;

namespace {

class FarmOnSlurm : public FarmTest {
protected:
    void SetUp() override {
        std::string const missing = cluster.Start();
        if (missing.starts_with("Slurm does not start")) FAIL() << missing;
        if (!missing.empty()) GTEST_SKIP() << missing;
        setenv("SLURM_CONF", cluster.Environment().substr(11).c_str(), 1);
        Record("whole.mkv", "300:540");
    }
    void TearDown() override {
        unsetenv("SLURM_CONF");
        if (HasFailure()) std::cout << cluster.Logs();
    }

    static constexpr char const* film = "--slurm --out film.mkv --frames 300:540 --chunk 30";

    Cluster cluster;
};

} // namespace

TEST_F(FarmOnSlurm, DrawsTheFilmAsAnArrayOfJobs) {
    Fault(
        R"sh([ -z "$part" ] || echo "$SLURM_JOB_ID of $SLURM_ARRAY_TASK_COUNT on $SLURMD_NODENAME" >>"$here/nodes")sh");
    Outcome const outcome = Farm(film);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, In("film.mkv") + "\n");
    EXPECT_EQ(outcome.error, "");
    ExpectSame("film.mkv", "whole.mkv");
    EXPECT_THAT(Drawn(), ElementsAre(300, 330, 360, 390, 420, 450, 480, 510));
    EXPECT_EQ(Shell("grep -c 'of 8 on' nodes").output, "8\n");
    EXPECT_EQ(Shell("sed 's/.* //' nodes | sort -u | xargs").output, "one two\n");
    EXPECT_EQ(cluster.Ask("squeue --noheader"), "");
}

TEST_F(FarmOnSlurm, LosesNothingWithANode) {
    // The third chunk waits on its first node, so that something is lost with it.
    Fault(
        R"sh(case "$part" in *00002*)
        ! once waits || { echo "$SLURMD_NODENAME" >"$here/node"; sleep 600; } ;; esac)sh");
    auto const farm = Start(film);
    ASSERT_TRUE(Comes("once-waits"));
    ASSERT_TRUE(Comes("node"));
    for (int tries = 0; fs::file_size(In("node")) == 0 && tries < 100; ++tries) std::this_thread::sleep_for(20ms);
    std::string const node = support::read_all(In("node")).substr(0, 3);
    cluster.Lose(node);
    EXPECT_EQ(farm->Wait(180s), 0);
    EXPECT_EQ(farm->Error(), "");
    EXPECT_THAT(cluster.Ask("sinfo --noheader --nodes=" + node + " --format=%T"), testing::StartsWith("down"));
    ExpectSame("film.mkv", "whole.mkv");
    auto const drawn = Drawn();
    EXPECT_EQ(std::ranges::count(drawn, 360), 2) << "the chunk that was lost is drawn again, by the other node";
}

TEST_F(FarmOnSlurm, AFarmThatIsStoppedTakesItsJobsAlong) {
    // The third chunk would wait on without it.
    Fault(R"sh(case "$part" in *00002*) ! once waits || sleep 600 ;; esac)sh");
    auto const farm = Start(film);
    ASSERT_TRUE(Comes("film.mkv.farm/00000.sum"));
    ASSERT_TRUE(Comes("once-waits"));
    farm->Signal(SIGTERM);
    EXPECT_EQ(farm->Wait(20s), 143);
    for (int tries = 0; cluster.Ask("squeue --noheader") != "" && tries < 400; ++tries)
        std::this_thread::sleep_for(50ms);
    EXPECT_EQ(cluster.Ask("squeue --noheader"), "");
    Drawn();
    EXPECT_EQ(Farm(film).status, 0);
    EXPECT_THAT(Drawn(), testing::Not(testing::Contains(300)));
    ExpectSame("film.mkv", "whole.mkv");
}
