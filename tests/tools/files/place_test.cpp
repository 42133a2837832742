// SPDX-License-Identifier: MIT
// The program that puts built files into the source tree.

#include "tests/support/command.h"
#include "tests/support/temp.h"

#include <chrono>
#include <filesystem>
#include <gtest/gtest.h>

namespace fs = std::filesystem;
using support::Outcome;
using support::read_all;

namespace {

class Place : public testing::Test {
protected:
    Place() { fs::create_directory(folder.Path("built")); }

    Outcome Run(std::string const& arguments, std::string const& before = "") const {
        return support::run_shell(before + "'" PLACE_PROGRAM "' " + arguments, {.folder = folder.Path("")});
    }

    support::TempFolder const folder;
};

} // namespace

TEST_F(Place, CopiesEveryFileIntoTheFolder) {
    folder.Write("built/a", "one");
    folder.Write("built/b", "two");
    Outcome const end = Run("built/a built/b data/new");
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.output + end.error, "");
    EXPECT_EQ(read_all(folder.Path("data/new/a")), "one");
    EXPECT_EQ(read_all(folder.Path("data/new/b")), "two");
}

TEST_F(Place, LeavesAFileAloneThatIsTheSame) {
    folder.Write("built/a", "one");
    ASSERT_EQ(Run("built/a data").status, 0);
    fs::file_time_type const long_ago{std::chrono::hours(1)};
    fs::last_write_time(folder.Path("data/a"), long_ago);
    EXPECT_EQ(Run("built/a data").status, 0);
    EXPECT_EQ(fs::last_write_time(folder.Path("data/a")), long_ago);
    folder.Write("built/a", "two");
    EXPECT_EQ(Run("built/a data").status, 0);
    EXPECT_EQ(read_all(folder.Path("data/a")), "two");
}

TEST_F(Place, KeepsTheOldFileWhereTheNewOneDoesNotFit) {
    folder.Write("built/a", std::string(5000, 'n'));
    fs::create_directory(folder.Path("data"));
    folder.Write("data/a", "old");
    Outcome const end = Run("built/a data", "ulimit -f 1; "); // blocks of 512 bytes
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error, "place: cannot write data/a: File too large\n");
    EXPECT_EQ(read_all(folder.Path("data/a")), "old");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path("data")), {}), 1);
}

TEST_F(Place, SaysInOneLineWhatIsWrong) {
    folder.Write("file", "");
    struct {
        char const* arguments;
        int status;
        char const* line;
    } const rows[] = {
        {"", 2, "usage: place FILE... FOLDER\n"},
        {"file", 2, "usage: place FILE... FOLDER\n"},
        {"none .", 1, "place: cannot read none\n"},
        {"built .", 1, "place: cannot read built\n"},
        {"file /dev/null", 1, "place: cannot write /dev/null/file: Not a directory\n"},
    };
    for (auto const& row : rows) {
        Outcome const end = Run(row.arguments);
        EXPECT_EQ(end.status, row.status) << row.arguments;
        EXPECT_EQ(end.error, row.line);
    }
}
