// SPDX-License-Identifier: MIT
#include "tools/rehearse/filewatch.h"

#include "tests/support/temp.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <thread>

using namespace std::chrono_literals;
namespace fs = std::filesystem;

namespace {

class FileWatchTest : public testing::Test {
protected:
    FileWatchTest() {
        fs::create_directory(folder.Path("data"));
        folder.Write("data/a.asc", "first");
    }

    /// Asks every few milliseconds, as the frames do.
    static int Changes(FileWatch& watch, std::chrono::milliseconds time) {
        int count = 0;
        auto const until = std::chrono::steady_clock::now() + time;
        while (std::chrono::steady_clock::now() < until) {
            if (watch.Changed()) ++count;
            std::this_thread::sleep_for(3ms);
        }
        return count;
    }

    support::TempFolder const folder;
};

} // namespace

TEST_F(FileWatchTest, IsQuietWhereNothingChanges) {
    FileWatch watch({folder.Path("data")});
    std::ifstream(folder.Path("data/a.asc")).get();
    EXPECT_EQ(Changes(watch, 300ms), 0);
}

TEST_F(FileWatchTest, TellsOfEveryWayToSaveOnce) {
    std::pair<char const*, void (*)(std::string const&)> const ways[] = {
        {"in place", [](std::string const& file) { std::fstream(file, std::ios::in | std::ios::out) << "second"; }},
        {"truncated and written", [](std::string const& file) { std::ofstream(file) << "third"; }},
        {"renamed over it",
         [](std::string const& file) {
             std::ofstream(file + "~") << "fourth";
             fs::rename(file + "~", file);
         }},
        {"removed and written",
         [](std::string const& file) {
             fs::remove(file);
             std::ofstream(file) << "fifth";
         }},
        {"moved here from elsewhere",
         [](std::string const& file) {
             std::string const elsewhere = (fs::path(file).parent_path().parent_path() / "new").string();
             std::ofstream(elsewhere) << "sixth";
             fs::rename(elsewhere, file);
         }},
    };
    for (auto const& [way, save] : ways) {
        SCOPED_TRACE(way);
        FileWatch watch({folder.Path("data")});
        save(folder.Path("data/a.asc"));
        EXPECT_EQ(Changes(watch, 400ms), 1);
    }
}

TEST_F(FileWatchTest, TellsOfAFileThatIsSavedAllTheTime) {
    FileWatch watch({folder.Path("data")});
    int told = 0;
    for (int i = 0; i < 100; ++i) {
        folder.Write("data/a.asc", std::to_string(i));
        std::this_thread::sleep_for(10ms);
        if (watch.Changed()) ++told;
    }
    EXPECT_GE(told, 4) << "it does not wait for the end";
    EXPECT_EQ(Changes(watch, 400ms), 1) << "and the last one is not lost";
}

TEST_F(FileWatchTest, WatchesAFolderAgainThatWasAway) {
    FileWatch watch({folder.Path("data")});
    fs::rename(folder.Path("data"), folder.Path("away"));
    EXPECT_EQ(Changes(watch, 400ms), 1);
    folder.Write("away/a.asc", "unseen");
    EXPECT_EQ(Changes(watch, 300ms), 0);
    fs::rename(folder.Path("away"), folder.Path("data"));
    EXPECT_EQ(Changes(watch, 600ms), 1);
    folder.Write("data/a.asc", "seen");
    EXPECT_EQ(Changes(watch, 400ms), 1);
    fs::remove_all(folder.Path("data"));
    EXPECT_GE(Changes(watch, 400ms), 1);
    fs::create_directory(folder.Path("data"));
    EXPECT_GE(Changes(watch, 600ms), 1);
}
