// SPDX-License-Identifier: MIT
// Presets of films, with a stand-in for the recorder.

#include "tests/support/command.h"
#include "tests/support/temp.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fs = std::filesystem;
using testing::HasSubstr;

namespace {

class Films : public testing::Test {
protected:
    Films() {
        fs::copy("tools/films", folder.Path("films"));
        fs::create_directory(folder.Path("bin"));
        recorder = folder.Write("bin/hardsilence-record", "#!/bin/sh\nprintf '[%s]' \"$@\"\n");
        fs::permissions(recorder, fs::perms::owner_all);
    }

    support::Outcome Run(std::vector<std::string> const& arguments) const {
        std::vector<std::string> all = {folder.Path("films")};
        all.insert(all.end(), arguments.begin(), arguments.end());
        return support::run(all);
    }

    support::TempFolder const folder;
    std::string recorder;
};

TEST_F(Films, AskTheRecorderForWhatThePresetMeans) {
    EXPECT_EQ(Run({"calm"}).output, "[--film][hardsilence-calm.mp4][--size][1920x1080][--calm]");
    EXPECT_EQ(Run({"party", "a b.mkv", "--to", "8"}).output,
              "[--film][a b.mkv][--size][1920x1080][--supersample][2][--to][8]");
    EXPECT_EQ(Run({"loop", "--jobs", "1"}).output,
              "[--film][hardsilence-loop.gif][--scene][swapper][--to][8][--jobs][1]");
}

TEST_F(Films, HaveOptionsThatTheRecorderTakes) {
    std::string const real = HARDSILENCE_BINARY_DIR "/hardsilence-record";
    fs::remove(recorder);
    fs::create_symlink(real, recorder);
    std::string const help = Run({"--help"}).output;
    for (char const* preset : {"site", "site-4k", "calm", "party", "party-50", "tv", "page", "loop"}) {
        SCOPED_TRACE(preset);
        EXPECT_THAT(help, HasSubstr("    " + std::string(preset) + " "));
        auto const planned = Run({preset, "--plan"});
        EXPECT_EQ(planned.status, 0) << planned.error;
        EXPECT_THAT(planned.output, HasSubstr("frames="));
    }
}

TEST_F(Films, RefuseInOneLine) {
    auto const refusal = [](support::Outcome const& outcome) {
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.output, "");
        return outcome.error;
    };
    EXPECT_EQ(refusal(Run({})), "films: no preset; see --help\n");
    EXPECT_EQ(refusal(Run({"cinema"})), "films: there is no preset 'cinema'; see --help\n");
    fs::remove(recorder);
    EXPECT_THAT(refusal(Run({"site"})), HasSubstr("films: there is no recorder here"));
}

} // namespace
