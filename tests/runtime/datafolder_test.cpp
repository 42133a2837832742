// SPDX-License-Identifier: MIT
// Where the programs look for data/. Without a display each ends before it has a window; what it says tells whether
// it got past its data.

#include "tests/support/process.h"
#include "tests/support/temp.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fs = std::filesystem;
using testing::StartsWith;

namespace {

constexpr char const* no_display = "Cannot open the display. Is DISPLAY set, and an X server running?\n";

class DataFolder : public testing::Test {
protected:
    DataFolder() {
        for (char const* path : {"prefix/bin", "elsewhere"}) fs::create_directories(folder.Path(path));
        program = folder.Path("prefix/bin/hardsilence");
        fs::copy_file(HARDSILENCE_BINARY_DIR "/hardsilence", program);
    }
    void GiveData(std::string const& place, std::string const& file = "weknow.asc") const {
        fs::create_directories(folder.Path(place + "/data"));
        static_cast<void>(folder.Write(place + "/data/" + file, ""));
    }
    /// @return what the program says on standard error
    std::string Start() {
        Process process({program}, {"DISPLAY"}, folder.Path("elsewhere"));
        EXPECT_EQ(process.Wait(std::chrono::seconds(5)), 1);
        return process.Error();
    }
    support::TempFolder folder;
    std::string program;
};

TEST_F(DataFolder, IsLookedForInTheWorkingFolderBesideTheProgramAndInTheShareFolderOfItsPrefix) {
    for (char const* place : {"elsewhere", "prefix/bin", "prefix", "prefix/share/hardsilence"}) {
        SCOPED_TRACE(place);
        GiveData(place);
        EXPECT_EQ(Start(), no_display);
        fs::remove_all(folder.Path(std::string(place) + "/data"));
    }
}

TEST_F(DataFolder, ThatIsNowhereIsOneLineWithThePlacesTried) {
    GiveData("elsewhere", "other.asc");
    std::string const said = Start();
    EXPECT_THAT(said, StartsWith("Cannot find the show's data/weknow.asc in any of " + folder.Path("elsewhere") + ", " +
                                 folder.Path("prefix/bin") + ", " + folder.Path("prefix") + ", " +
                                 folder.Path("prefix/share/hardsilence") + ", "));
    EXPECT_EQ(said.find('\n'), said.size() - 1);
}

TEST_F(DataFolder, ThatIsNowhereEndsTheRecorderInTheSameWay) {
    fs::copy_file(HARDSILENCE_BINARY_DIR "/hardsilence-record", folder.Path("prefix/bin/hardsilence-record"));
    Process process({folder.Path("prefix/bin/hardsilence-record"), "--list"}, {"DISPLAY"}, folder.Path("elsewhere"));
    EXPECT_EQ(process.Wait(std::chrono::seconds(5)), 1);
    EXPECT_THAT(process.Error(), StartsWith("hardsilence-record: Cannot find the show's data/weknow.asc in any of "));
}

} // namespace
