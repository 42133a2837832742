// SPDX-License-Identifier: MIT
// What is installed, and what is left of it when it is removed.

#include "tests/support/command.h"
#include "tests/support/temp.h"

#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <vector>

namespace fs = std::filesystem;

namespace {

constexpr char const* build = HARDSILENCE_BINARY_DIR;

/// All files below a folder, relative to it.
std::vector<std::string> files_in(fs::path const& folder) {
    std::vector<std::string> found;
    for (auto const& entry : fs::recursive_directory_iterator(folder)) {
        if (!entry.is_directory()) found.push_back(entry.path().lexically_relative(folder));
    }
    std::ranges::sort(found);
    return found;
}

TEST(Install, IsUndoneByUninstall) {
    support::TempFolder const folder;
    support::Surroundings const staged = {.environment = {"DESTDIR=" + folder.Path("a stage")}};
    fs::path const prefix = folder.Path("a stage/opt/show");
    auto const installed = support::run({"cmake", "--install", build, "--prefix", "/opt/show"}, staged);
    ASSERT_EQ(installed.status, 0) << installed.error;
    EXPECT_THAT(
        files_in(prefix),
        testing::IsSupersetOf({"bin/hardsilence", "bin/hardsilence-play", "share/applications/hardsilence.desktop",
                               "share/hardsilence/data/weknow.asc", "share/icons/hicolor/48x48/apps/hardsilence.png",
                               "share/icons/hicolor/scalable/apps/hardsilence.svg", "share/man/man6/hardsilence.6"}));
    std::string const own = folder.Write("a stage/opt/show/share/hardsilence/data/own.txt", "somebody else's");
    auto const removed = support::run({"cmake", "--build", build, "--target", "uninstall"}, staged);
    EXPECT_EQ(removed.status, 0) << removed.output;
    EXPECT_EQ(files_in(prefix), std::vector<std::string>{"share/hardsilence/data/own.txt"});

    fs::remove(own);
    ASSERT_EQ(support::run({"cmake", "--install", build, "--prefix", "/opt/show"}, staged).status, 0);
    EXPECT_EQ(support::run({"cmake", "--build", build, "--target", "uninstall"}, staged).status, 0);
    EXPECT_FALSE(fs::exists(prefix / "share/hardsilence"));
    EXPECT_TRUE(fs::exists(prefix / "bin")); // folders that others share stay
}

TEST(Uninstall, NeedsAnInstall) {
    auto const outcome = support::run({"cmake", "-DMANIFEST=/nonexistent/manifest", "-P", "tools/uninstall.cmake"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.error, testing::HasSubstr("nothing was installed: there is no /nonexistent/manifest"));
}

/// Scripts of the checkout; the front door and the programs have tests of their own.
TEST(Version, IsStatedOnce) {
    auto const outcome = support::run({"tools/version"});
    EXPECT_EQ(outcome.output, HARDSILENCE_VERSION "\n");
    EXPECT_THAT(outcome.output, testing::MatchesRegex("[0-9]+\\.[0-9]+\\.[0-9]+\n"));
}

TEST(Version, IsToldByEveryTool) {
    for (char const* tool : {HARDSILENCE_BINARY_DIR "/hardsilence-record", HARDSILENCE_BINARY_DIR "/tools/asc/asc",
                             "tools/farm", "tools/films", "tools/release", "tools/release-trial", "tools/web"}) {
        SCOPED_TRACE(tool);
        auto const outcome = support::run({tool, "--version"});
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(outcome.output, fs::path(tool).filename().string() + " " HARDSILENCE_VERSION "\n");
    }
}

} // namespace
