// SPDX-License-Identifier: MIT
// The front door, in a checkout and in a prefix of its own, with stand-ins for what it calls: no package is installed
// and nothing is compiled.

#include "tests/support/process.h"
#include "tests/support/temp.h"

#include <csignal>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <thread>

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using support::read_all;
using testing::ContainsRegex;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

// Stand in for the compilers: notes its arguments, and makes programs that tell theirs.
constexpr char const* cmake = R"(#!/bin/bash
echo "cmake $*" >>"$LOG"
if [ "$1" != --build ]; then
    mkdir -p "$4"
    echo "CMAKE_HOME_DIRECTORY:INTERNAL=$2" >"$4/CMakeCache.txt"
    exit
fi
if [ -n "${BUILD_HANGS:-}" ]; then
    sleep 100 &
    echo $! >"$BUILD_HANGS"
    wait
fi
if [ -n "${BUILD_FAILS:-}" ]; then
    echo "it does not compile"
    exit 1
fi
cp "$PROGRAM" "$2/$4"
)";

constexpr char const* program = R"(#!/bin/bash
echo "$(basename "$0") $*"
env | grep ^HARDSILENCE_ | sort
[ -z "${PLAYS:-}" ] || exec sleep 100
)";

constexpr char const* note = "#!/bin/bash\necho \"$(basename \"$0\") $*\" >>\"$LOG\"\n";
constexpr char const* warning =
    "Warning: this show strobes heavily; not for anyone with photosensitive epilepsy. --calm has no strobes.\n";
constexpr char const* calm = "The calm mode: held cuts instead of strobes.\n";
constexpr char const* building = "Building the show; this takes a while the first time.\n";

class FrontDoor : public testing::Test {
protected:
    FrontDoor() {
        for (char const* name : {"bin", "checkout/tools", "checkout/data", "home"}) fs::create_directories(At(name));
        for (char const* name : {"play", "packages.txt", "CMakeLists.txt", "tools/need-packages", "tools/version"}) {
            fs::copy(fs::path(HARDSILENCE_SOURCE_DIR) / name, At("checkout") / name);
        }
        for (char const* name : {"basename", "bash", "cat", "cp", "dirname", "echo", "env", "grep", "ln", "mkdir",
                                 "nproc", "readlink", "sed", "sleep", "sort", "xargs"}) {
            fs::path where = fs::path("/usr/bin") / name;
            if (!fs::exists(where)) where = fs::path("/bin") / name;
            fs::create_symlink(where, At("bin") / name);
        }
        Command("cmake", cmake);
        Command("dpkg-query", "#!/bin/bash\necho -n ${INSTALLED-installed}\n");
        Command("id", "#!/bin/bash\necho ${USER_ID-0}\n");
        Command("apt-get", note);
        Give("program", program);
    }

    fs::path At(std::string const& name) const { return folder.Path(name); }
    void Give(std::string const& name, std::string const& text) const {
        fs::permissions(folder.Write(name, text), fs::perms::owner_all | fs::perms::others_exec);
    }
    void Command(std::string const& name, std::string const& text) const { Give("bin/" + name, text); }

    std::unique_ptr<Process> Begin(std::vector<std::string> arguments, std::vector<std::string> environment = {}) {
        arguments.insert(arguments.begin(), door);
        std::vector<std::string> all = {"PATH=" + folder.Path("bin"),
                                        "HOME=" + folder.Path("home"),
                                        "LOG=" + folder.Path("log"),
                                        "PROGRAM=" + folder.Path("program"),
                                        "DISPLAY=:none",
                                        "WAYLAND_DISPLAY",
                                        "XDG_CACHE_HOME"};
        for (char const* name : {"WIRE", "CHECK", "DESKTOP", "STRETCH", "MONITOR", "CALM", "PACE", "SOUND", "OFFSET"}) {
            all.push_back(std::string("HARDSILENCE_") + name);
        }
        all.insert(all.end(), environment.begin(), environment.end());
        return std::make_unique<Process>(arguments, all, folder.Path("home"));
    }
    /// Runs it to its end.
    void Run(std::vector<std::string> arguments, std::vector<std::string> environment = {}) {
        auto const process = Begin(std::move(arguments), std::move(environment));
        status = process->Wait(10s);
        output = process->Output();
        error = process->Error();
    }
    /// What the stand-ins were asked for.
    std::string Log() const { return read_all(At("log")); }

    support::TempFolder folder;
    std::string door = folder.Path("checkout/play");
    std::optional<int> status;
    std::string output;
    std::string error;
};

constexpr char const* friendly =
    "HARDSILENCE_CHECK=1\nHARDSILENCE_DESKTOP=1\nHARDSILENCE_PACE=1\nHARDSILENCE_SOUND=1\nHARDSILENCE_WIRE=1\n";

TEST_F(FrontDoor, WarnsBuildsAndPlaysWithTheFriendlySettings) {
    Run({});
    EXPECT_EQ(status, 0) << error;
    EXPECT_EQ(output, std::string(warning) + building + "hardsilence \n" + friendly);
    EXPECT_EQ(error, "");
    std::string const checkout = folder.Path("checkout");
    EXPECT_THAT(Log(), StartsWith("cmake -S " + checkout + " -B " + checkout +
                                  "/build -DCMAKE_BUILD_TYPE=Release\ncmake --build " + checkout +
                                  "/build --target hardsilence --parallel "));
    Run({"--calm"});
    EXPECT_EQ(output, std::string(calm) + "hardsilence \nHARDSILENCE_CALM=1\n" + friendly);
}

TEST_F(FrontDoor, PassesTheProgramsOptionsOn) {
    struct {
        std::vector<std::string> given;
        char const* passed;
    } const rows[] = {
        {{"-fps", "-novsync", "-limit", "30"}, "-fps -novsync -limit 30"},
        {{"--window", "-width", "800"}, "-w -width 800"},
        {{"-width", "--window"}, "-width --window"},
        {{"-limit", "-h"}, "-limit -h"},
        {{"-limit"}, "-limit"},
        {{"-what", "is this"}, "-what is this"},
    };
    for (auto const& row : rows) {
        Run(row.given);
        EXPECT_THAT(output, HasSubstr(std::string("\nhardsilence ") + row.passed + "\n" + friendly));
        EXPECT_EQ(status, 0);
    }
}

TEST_F(FrontDoor, TurnsItsOwnOptionsIntoSettings) {
    Run({"--stretch", "--monitor", "2", "--offset", "-40"});
    EXPECT_THAT(
        output,
        EndsWith(
            "hardsilence \nHARDSILENCE_CHECK=1\nHARDSILENCE_DESKTOP=1\nHARDSILENCE_MONITOR=2\nHARDSILENCE_OFFSET=-40\n"
            "HARDSILENCE_PACE=1\nHARDSILENCE_SOUND=1\nHARDSILENCE_STRETCH=1\n"
            "HARDSILENCE_WIRE=1\n"));
    Run({"--monitor", "list"});
    EXPECT_THAT(output, HasSubstr("HARDSILENCE_MONITOR=list\n"));
    EXPECT_THAT(output, Not(HasSubstr("Warning")));
}

TEST_F(FrontDoor, LeavesAVariableThatIsSetAsItIs) {
    Run({}, {"HARDSILENCE_WIRE=0", "HARDSILENCE_DESKTOP=", "HARDSILENCE_PACE=0", "HARDSILENCE_SOUND=no"});
    EXPECT_THAT(
        output,
        EndsWith("hardsilence \nHARDSILENCE_CHECK=1\nHARDSILENCE_DESKTOP=\nHARDSILENCE_PACE=0\nHARDSILENCE_SOUND=no\n"
                 "HARDSILENCE_WIRE=0\n"));
}

TEST_F(FrontDoor, RefusesWhatItDoesNotKnowInOneLine) {
    struct {
        std::vector<std::string> given;
        char const* said;
    } const rows[] = {
        {{"--what"}, "unknown option '--what'"},
        {{"--windowed"}, "unknown option '--windowed'"},
        {{"--monitor"}, "--monitor requires a value"},
        {{"--monitor", "0"}, "--monitor: '0' is not a number from 1 to 99, nor 'list'"},
        {{"--monitor", "1x"}, "--monitor: '1x' is not a number from 1 to 99, nor 'list'"},
        {{"--monitor", "100"}, "--monitor: '100' is not a number from 1 to 99, nor 'list'"},
        {{"--monitor", ""}, "--monitor: '' is not a number from 1 to 99, nor 'list'"},
        {{"--offset"}, "--offset requires a value"},
        {{"--offset", "abc"}, "--offset: 'abc' is not a number from -2000 to 2000"},
        {{"--offset", "2001"}, "--offset: '2001' is not a number from -2000 to 2000"},
        {{"--offset", "-"}, "--offset: '-' is not a number from -2000 to 2000"},
    };
    for (auto const& row : rows) {
        Run(row.given);
        EXPECT_EQ(status, 1);
        EXPECT_EQ(error, std::string("play: ") + row.said + "; see --help\n");
        EXPECT_EQ(output, "");
    }
    EXPECT_EQ(Log(), "");
}

TEST_F(FrontDoor, TellsHelpAndVersionWithoutInstallingOrCompiling) {
    for (char const* option : {"-h", "--help"}) {
        Run({"-fps", option, "--what"}, {"DISPLAY", "INSTALLED="});
        EXPECT_EQ(status, 0);
        EXPECT_THAT(output, StartsWith("usage: play [option...]\n"));
        EXPECT_THAT(output, HasSubstr("-width X"));
        EXPECT_THAT(output, HasSubstr("Exit status: 0 done; 1 refused or failed, with one line that tells why; "
                                      "128+n ended by signal n.\n"));
        EXPECT_EQ(error, "");
    }
    Run({"--version"}, {"DISPLAY", "INSTALLED="});
    EXPECT_EQ(output, "Hard Silence " HARDSILENCE_VERSION "\n");
    EXPECT_EQ(Log(), "");
}

TEST_F(FrontDoor, OffersAContactSheetWhereThereIsNoDisplay) {
    Run({}, {"DISPLAY"});
    EXPECT_EQ(status, 1);
    EXPECT_EQ(output, warning);
    EXPECT_THAT(error, StartsWith("play: there is no display to play on, for DISPLAY is not set. A contact sheet"));
    EXPECT_THAT(error, EndsWith(" --record --overview --sheet show.png\n"));
    EXPECT_EQ(Log(), "");
    Run({}, {"DISPLAY", "WAYLAND_DISPLAY=wayland-0"});
    EXPECT_THAT(error, HasSubstr("for this Wayland desktop lacks Xwayland."));
}

TEST_F(FrontDoor, HandsAllThatFollowsRecordToTheRecorder) {
    Run({"--record", "--beats", "1,2", "--help", "-h", "--sheet", "a b.png"}, {"DISPLAY"});
    EXPECT_EQ(status, 0) << error;
    EXPECT_EQ(output, std::string(building) + "hardsilence-record --beats 1,2 --help -h --sheet a b.png\n");
    EXPECT_THAT(Log(), HasSubstr("--target hardsilence-record "));
    Run({"--calm", "--record", "--list"});
    EXPECT_EQ(output, "hardsilence-record --calm --list\nHARDSILENCE_CALM=1\n");
}

TEST_F(FrontDoor, BuildsAndServesThePageForBrowsers) {
    Give("checkout/tools/web", "#!/bin/bash\necho \"web $*\"\n");
    Run({"--web"}, {"DISPLAY"});
    EXPECT_EQ(status, 0) << error;
    EXPECT_EQ(output, "Building the page; this takes minutes the first time.\nweb --serve\n");
    EXPECT_EQ(Log(), "");
    for (auto const& arguments : {std::vector<std::string>{"--web", "-fps"}, {"-fps", "--web"}}) {
        Run(arguments);
        EXPECT_EQ(status, 1);
        EXPECT_EQ(error, "play: --web takes no other options; see --help\n");
    }
    fs::remove(At("checkout/tools/web"));
    Run({"--web"});
    EXPECT_EQ(status, 1);
    EXPECT_EQ(error, "play: --web takes the checkout; see --help\n");
}

TEST_F(FrontDoor, BuildsInTheCacheWhereTheCheckoutIsReadOnly) {
    static_cast<void>(folder.Write("checkout/build", "no folder can be made here"));
    Run({});
    EXPECT_EQ(status, 0) << error;
    std::string const build = folder.Path("home/.cache/hardsilence/build");
    EXPECT_THAT(Log(), HasSubstr(" -B " + build + ' '));
    EXPECT_TRUE(fs::equivalent(build + "/data", At("checkout/data"))); // beside the program, where it looks
    Run({}, {"XDG_CACHE_HOME=" + folder.Path("cache")});
    EXPECT_TRUE(fs::exists(At("cache/hardsilence/build/hardsilence")));
}

TEST_F(FrontDoor, ConfiguresACheckoutAnewThatWasMoved) {
    Run({});
    EXPECT_THAT(Log(), Not(HasSubstr("--fresh")));
    fs::rename(At("checkout"), At("moved"));
    door = folder.Path("moved/play");
    Run({});
    EXPECT_EQ(status, 0);
    EXPECT_THAT(Log(), HasSubstr("cmake -S " + folder.Path("moved") + " -B " + folder.Path("moved/build --fresh")));
}

TEST_F(FrontDoor, NeverPlaysAnOldProgramWhenTheBuildFails) {
    Run({});
    Run({}, {"BUILD_FAILS=1"});
    EXPECT_EQ(status, 1);
    EXPECT_EQ(output, warning);
    EXPECT_EQ(error, "it does not compile\n");
}

struct Signal {
    int number;
    int status;
};

constexpr Signal stops[] = {{SIGHUP, 129}, {SIGINT, 130}, {SIGTERM, 143}};

/// Whether it is there, and not dead and only not yet collected.
bool runs(std::string const& pid) {
    std::string const stat = read_all("/proc/" + pid.substr(0, pid.find('\n')) + "/stat");
    return !stat.empty() && stat.find(") Z ") == std::string::npos;
}

TEST_F(FrontDoor, EndsWithItsBuildWhenItIsStopped) {
    for (auto const& [number, expected] : stops) {
        SCOPED_TRACE(number);
        auto const process = Begin({}, {"BUILD_HANGS=" + folder.Path("pid")});
        std::string child;
        for (int i = 0; i < 500 && child.find('\n') == std::string::npos; ++i) {
            std::this_thread::sleep_for(10ms);
            child = read_all(At("pid"));
        }
        ASSERT_NE(child, "");
        EXPECT_TRUE(runs(child));
        process->Signal(number);
        EXPECT_EQ(process->Wait(2s), expected);
        EXPECT_EQ(process->Error(), "");
        for (int i = 0; i < 100 && runs(child); ++i) std::this_thread::sleep_for(10ms);
        EXPECT_FALSE(runs(child));
        fs::remove(At("pid"));
    }
}

TEST_F(FrontDoor, IsTheProgramOnceItPlays) {
    for (auto const& [number, expected] : stops) {
        SCOPED_TRACE(number);
        auto const process = Begin({}, {"PLAYS=1"});
        for (int i = 0; i < 500 && process->Output().find("HARDSILENCE_WIRE") == std::string::npos; ++i) {
            std::this_thread::sleep_for(10ms);
        }
        std::this_thread::sleep_for(100ms);
        process->Signal(number);
        EXPECT_EQ(process->Wait(2s), expected);
    }
}

TEST_F(FrontDoor, InstallsWhatIsMissing) {
    Run({}, {"INSTALLED="});
    EXPECT_EQ(status, 0) << error;
    EXPECT_THAT(output, HasSubstr("Installing: g++ cmake "));
    EXPECT_THAT(Log(), StartsWith("apt-get update -qq\napt-get install -y -qq --no-install-recommends g++ cmake "));
}

TEST_F(FrontDoor, GivesSudoTheEnvironmentThatTheInstallerNeeds) {
    Command("sudo", note);
    Run({}, {"INSTALLED=", "USER_ID=1000"});
    EXPECT_EQ(status, 0) << error;
    EXPECT_THAT(Log(), StartsWith("sudo apt-get update -qq\nsudo env DEBIAN_FRONTEND=noninteractive apt-get install "));
}

TEST_F(FrontDoor, SaysThatSudoIsMissing) {
    Run({}, {"INSTALLED=", "USER_ID=1000"});
    EXPECT_EQ(status, 1);
    EXPECT_THAT(error, StartsWith("Packages are missing, and without sudo only root can install them: "
                                  "apt-get install g++ cmake "));
    EXPECT_EQ(Log(), "");
}

TEST_F(FrontDoor, InstalledStandsBesideTheProgram) {
    fs::create_directories(At("prefix/bin"));
    door = folder.Path("prefix/bin/hardsilence-play");
    fs::copy(fs::path(HARDSILENCE_BINARY_DIR) / "hardsilence-play", door); // as the build makes it of play
    Give("prefix/bin/hardsilence", program);
    Give("prefix/bin/hardsilence-record", program);
    fs::create_symlink(door, At("bin/link"));
    Run({"-fps"});
    EXPECT_EQ(output, std::string(warning) + "hardsilence -fps\n" + friendly);
    Run({"--version"});
    EXPECT_EQ(output, "Hard Silence " HARDSILENCE_VERSION "\n");
    Run({"--record", "--list"});
    EXPECT_EQ(output, "hardsilence-record --list\n");
    door = folder.Path("bin/link");
    Run({"-fps"});
    EXPECT_EQ(output, std::string(warning) + "hardsilence -fps\n" + friendly);
    EXPECT_EQ(Log(), "");
    fs::remove(At("prefix/bin/hardsilence-record"));
    Run({"--record", "--list"});
    EXPECT_EQ(status, 1);
    EXPECT_EQ(error, "link: the recorder is not installed; on Debian it is in hardsilence-tools; see --help\n");
}

} // namespace
