// SPDX-License-Identifier: MIT
// What the release's commands refuse before they begin.

#include "tests/support/command.h"
#include "tests/support/temp.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

void expect_refusal(std::vector<std::string> const& command, std::string const& line) {
    auto const outcome = support::run(command);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.error, "release: " + line + "\n");
}

TEST(Release, RefusesWhatItDoesNotKnow) {
    expect_refusal({"tools/release", "--fast"}, "unknown option '--fast'; see --help");
    expect_refusal({"tools/release", "--suite"}, "--suite requires a value; see --help");
    expect_refusal({"tools/release", "--address"}, "--address requires a value; see --help");
    expect_refusal({"tools/release", "--address", "home"}, "'home' is no web address");
}

TEST(Release, NeverReplacesAFolderThatIsNoRelease) {
    support::TempFolder const folder;
    std::string const precious = folder.Write("precious.txt", "mine");
    std::string const path = fs::path(precious).parent_path();
    expect_refusal({"tools/release", path}, path + " is there and is no release");
    EXPECT_EQ(support::read_all(precious), "mine");
}

TEST(ReleaseTrial, TellsItsUsageWithoutFolderAndSuite) {
    auto const outcome = support::run({"tools/release-trial", "folder"});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.error.rfind("usage: tools/release-trial FOLDER SUITE...\n", 0), 0u);
}

} // namespace
