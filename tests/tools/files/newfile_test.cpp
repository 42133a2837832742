// SPDX-License-Identifier: MIT
#include "tools/files/newfile.h"

#include "tests/support/command.h"
#include "tests/support/temp.h"

#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <gmock/gmock.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;
using support::Outcome;
using support::read_all;
using testing::ElementsAre;
using testing::EndsWith;
using testing::StartsWith;

namespace {

constexpr int no_mount = 77; ///< exit status of a child that may not mount

class NewFileTest : public testing::Test {
protected:
    std::string In(std::string const& name) const { return folder.Path(name); }

    /// The names in the folder, or in one within it.
    std::vector<std::string> Names(std::string const& within = "") const {
        std::vector<std::string> names;
        for (auto const& entry : fs::directory_iterator(In(within))) names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }

    mode_t Mode(std::string const& name) const {
        struct stat info {};
        EXPECT_EQ(stat(In(name).c_str(), &info), 0);
        return info.st_mode & 07777;
    }

    support::TempFolder const folder;
};

/// Files of this process may grow to a page and no further.
void limit_files() {
    rlimit const page{4096, 4096};
    setrlimit(RLIMIT_FSIZE, &page);
    static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
}

/// Mounts a small disk there, which goes with this process.
bool mount_disk(std::string const& place) {
    if (unshare(CLONE_NEWNS) != 0 && unshare(CLONE_NEWNS | CLONE_NEWUSER) != 0) return false;
    return mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           mount("tmpfs", place.c_str(), "tmpfs", 0, "size=1m") == 0;
}

} // namespace

TEST_F(NewFileTest, HasItsNameOnlyOnceItIsWhole) {
    folder.Write("a.txt", "old");
    NewFile file(In("a.txt"));
    EXPECT_TRUE(file.Append("ne"));
    EXPECT_TRUE(file.Append("w"));
    EXPECT_EQ(read_all(In("a.txt")), "old");
    EXPECT_TRUE(file.Commit());
    EXPECT_EQ(read_all(In("a.txt")), "new");
    EXPECT_EQ(file.Error(), "");
    EXPECT_THAT(Names(), ElementsAre("a.txt"));
}

TEST_F(NewFileTest, LeavesNothingWhenItIsNotCommitted) {
    folder.Write("a.txt", "old");
    NewFile(In("a.txt")).Append("new");
    NewFile(In("b.txt")).Append("new");
    EXPECT_EQ(read_all(In("a.txt")), "old");
    EXPECT_THAT(Names(), ElementsAre("a.txt"));
    NewFile file(In("a.txt"));
    file.Drop();
    EXPECT_FALSE(file.Append("more") || file.Commit());
    EXPECT_THAT(Names(), ElementsAre("a.txt"));
}

TEST_F(NewFileTest, CanBeWrittenByAnotherProgram) {
    NewFile file(In("film.mkv"));
    EXPECT_EQ(fs::path(file.TemporaryPath()).parent_path(), fs::path(In("film.mkv")).parent_path());
    EXPECT_THAT(file.TemporaryPath(), EndsWith(".mkv"));
    ASSERT_EQ(support::run_shell("printf film > '" + file.TemporaryPath() + "'").status, 0);
    EXPECT_THAT(Names(), testing::SizeIs(1));
    EXPECT_TRUE(file.Commit());
    EXPECT_EQ(read_all(In("film.mkv")), "film");
    EXPECT_THAT(Names(), ElementsAre("film.mkv"));
}

TEST_F(NewFileTest, TakesItsPermissionsFromTheOldOneOrTheUmask) {
    folder.Write("old", "old");
    chmod(In("old").c_str(), 0640);
    mode_t const before = umask(027);
    EXPECT_EQ(write_file(In("old"), "x") + write_file(In("new"), "x"), "");
    umask(before);
    EXPECT_EQ(Mode("old"), 0640u);
    EXPECT_EQ(Mode("new"), 0640u);
    chmod(In("old").c_str(), 0604);
    EXPECT_EQ(write_file(In("old"), "y"), "");
    EXPECT_EQ(Mode("old"), 0604u);
}

TEST_F(NewFileTest, GoesThroughSymbolicLinks) {
    fs::create_directory(In("there"));
    folder.Write("there/a", "old");
    fs::create_symlink("there/a", In("relative"));
    fs::create_symlink(In("relative"), In("absolute"));
    fs::create_symlink("there/b", In("dangling"));
    EXPECT_EQ(write_file(In("absolute"), "new") + write_file(In("dangling"), "first"), "");
    EXPECT_EQ(read_all(In("there/a")), "new");
    EXPECT_EQ(read_all(In("there/b")), "first");
    EXPECT_TRUE(fs::is_symlink(In("relative")) && fs::is_symlink(In("absolute")) && fs::is_symlink(In("dangling")));
    EXPECT_THAT(Names("there"), ElementsAre("a", "b"));
    fs::create_symlink("round", In("round"));
    EXPECT_EQ(write_file(In("round"), "x"), "cannot write " + In("round") + ": Too many levels of symbolic links");
}

TEST_F(NewFileTest, RefusesWhatIsNoFile) {
    fs::create_directory(In("folder"));
    mkfifo(In("fifo").c_str(), 0666);
    folder.Write("file", "");
    fs::create_symlink("/dev/full", In("device"));
    std::pair<std::string, std::string> const cases[] = {
        {In("folder"), "Is a directory"},
        {In("fifo"), "not a regular file"},
        {In("device"), "not a regular file"},
        {"/dev/null", "not a regular file"},
        {In("none/a"), "No such file or directory"},
        {In("file/a"), "Not a directory"},
        {"", "No such file or directory"},
        {In(std::string(256, 'x')), "File name too long"},
    };
    for (auto const& [path, reason] : cases) EXPECT_EQ(write_file(path, "x"), "cannot write " + path + ": " + reason);
    EXPECT_THAT(Names(), ElementsAre("device", "fifo", "file", "folder"));
    EXPECT_THAT(Names("folder"), ElementsAre());
}

TEST_F(NewFileTest, TakesTheLongestNameThereIs) {
    std::string const longest(255, 'x');
    EXPECT_EQ(write_file(In(longest), "x"), "");
    EXPECT_EQ(write_file(In(longest.substr(0, 5) + "." + longest.substr(6)), "x"), "");
}

TEST_F(NewFileTest, PassesByTemporaryNamesThatAreTaken) {
    std::string const taken = ".hardsilence-" + std::to_string(getpid()) + "-0.png";
    folder.Write(taken, "somebody's");
    NewFile one(In("a.png"));
    NewFile two(In("a.png"));
    EXPECT_TRUE(one.Append("one") && two.Append("two") && two.Commit() && one.Commit());
    EXPECT_EQ(read_all(In("a.png")), "one");
    EXPECT_EQ(read_all(In(taken)), "somebody's");
}

TEST_F(NewFileTest, KeepsTheOldFileWhereTheNewOneDoesNotFit) {
    folder.Write("a", "old");
    std::string const error = "cannot write " + In("a") + ": File too large";
    Outcome const end = support::run_in_child([&] {
        limit_files();
        return write_file(In("a"), std::string(5000, 'x')) == error ? 0 : 1;
    });
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(read_all(In("a")), "old");
    EXPECT_THAT(Names(), ElementsAre("a"));
}

TEST_F(NewFileTest, KeepsTheOldFileOnAFullDisk) {
    fs::create_directory(In("disk"));
    Outcome const end = support::run_in_child([&] {
        if (!mount_disk(In("disk"))) return no_mount;
        std::string const path = In("disk/a");
        bool good = write_file(path, std::string(600000, 'o')).empty();
        good =
            good && write_file(path, std::string(600000, 'n')) == "cannot write " + path + ": No space left on device";
        good = good && read_all(path) == std::string(600000, 'o') && Names("disk").size() == 1;
        return good && write_file(path, "small").empty() && read_all(path) == "small" ? 0 : 1;
    });
    if (end.status == no_mount) GTEST_SKIP() << "no disk can be mounted here";
    EXPECT_EQ(end.status, 0);
}

TEST_F(NewFileTest, SaysOnlyTheFirstThingThatWentWrong) {
    NewFile file(In("none/a"));
    std::string const error = file.Error();
    EXPECT_THAT(error, StartsWith("cannot write "));
    EXPECT_FALSE(file.Append("x") || file.Commit());
    EXPECT_EQ(file.Error(), error);
}

TEST_F(NewFileTest, TellsInAdvanceWhereNoneCanBeBegun) {
    folder.Write("a", "old");
    EXPECT_EQ(refuse_target(In("a")) + refuse_target(In("b")), "");
    EXPECT_EQ(read_all(In("a")), "old");
    EXPECT_THAT(Names(), ElementsAre("a"));
    EXPECT_EQ(refuse_target("/dev/full"), "cannot write /dev/full: not a regular file");
}
