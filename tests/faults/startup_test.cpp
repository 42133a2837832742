// The whole show, with one mesh file after the other that is not as it should be: each in a process of its own, as the
// show may end with an assertion report.

#include "tests/faults/datafiles.h"
#include "tests/show/scores.h"
#include "tests/show/wholeshow.h"
#include "tests/support/reference_asc.h"
#include "tests/support/temp.h"

#include <csignal>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>

namespace fs = std::filesystem;
using testing::ContainsRegex;
using testing::HasSubstr;

namespace {

constexpr uid_t nobody = 65534;
constexpr int cannot_change = 2;     ///< exit status: not the folder, or not the user
constexpr unsigned int longest = 10; // seconds: whoever takes longer hangs

/// What the show does without the file.
enum class Need {
    Ordinary, ///< ends: a model of the ordinary store
    Pieces,   ///< ends: a model by triangle
    Word,     ///< ends: one of several models in one file, looked for in a file of its own then
    None,     ///< goes on without a picture of it
};

struct Row {
    char const* file;
    Need need;
    char const* first; ///< of several models: the one that is missed first
};

// clang-format off
constexpr Row rows[] = {
    {"HARD-title.asc",           Need::Ordinary, ""},
    {"QUILLONx-title.asc",       Need::Ordinary, ""},
    {"SILENCE-title.asc",        Need::Ordinary, ""},
    {"butt_silhouette.asc",      Need::Ordinary, ""},
    {"credits.asc",              Need::Ordinary, ""},
    {"donut2.asc",               Need::None,     ""},
    {"framecube.asc",            Need::Pieces,   ""},
    {"frameicosahedron.asc",     Need::Ordinary, ""},
    {"frameoctoball.asc",        Need::Pieces,   ""},
    {"frametetrahedron.asc",     Need::Pieces,   ""},
    {"glass.asc",                Need::Pieces,   ""},
    {"greetings.asc",            Need::Word,     "Arbalest"},
    {"gun_silhouette.asc",       Need::Ordinary, ""},
    {"gungirl_silhouette.asc",   Need::Ordinary, ""},
    {"hollowsoccerball.asc",     Need::Ordinary, ""},
    {"infinity.asc",             Need::Pieces,   ""},
    {"maltanristi.asc",          Need::Pieces,   ""},
    {"side2_silhouette.asc",     Need::Ordinary, ""},
    {"sideview_silhouette.asc",  Need::Ordinary, ""},
    {"spikeydodecahedron.asc",   Need::Pieces,   ""},
    {"tentacles_silhouette.asc", Need::Ordinary, ""},
    {"torus2.asc",               Need::None,     ""},
    {"weknow.asc",               Need::Word,     "We"},
};
// clang-format on

/// A copy of the show's meshes; one of them at a time is replaced.
class StartUp : public testing::Test {
protected:
    StartUp() {
        fs::create_directory(root.Path("data"));
        for (std::string const& name : faults::mesh_files()) {
            fs::copy_file(HARDSILENCE_SOURCE_DIR "/data/" + name, Path(name));
            chmod(Path(name).c_str(), 0644);
        }
        chmod(root.Path("").c_str(), 0755);
        chmod(root.Path("data").c_str(), 0755);
    }

    std::string Path(std::string const& name) const { return root.Path("data/" + name); }

    void Restore(std::string const& name) const {
        fs::remove_all(Path(name));
        fs::copy_file(HARDSILENCE_SOURCE_DIR "/data/" + name, Path(name));
        chmod(Path(name).c_str(), 0644);
    }

    struct End {
        int status = 0; ///< as waitpid gives it
        std::string output;
        std::string error;
    };

    /// Plays the whole show, a few frames a beat, on an OpenGL that does nothing.
    /// @param user  who plays; 0 for the one that runs the test
    End Play(uid_t user = 0) const {
        std::string const out = root.Write("out", "");
        std::string const error = root.Write("error", "");
        pid_t const child = fork();
        if (child == 0) {
            dup2(open(out.c_str(), O_WRONLY), STDOUT_FILENO);
            dup2(open(error.c_str(), O_WRONLY), STDERR_FILENO);
            rlimit const no_core{0, 0};
            setrlimit(RLIMIT_CORE, &no_core);
            alarm(longest);
            if (chdir(root.Path("").c_str()) != 0 || (user != 0 && setuid(user) != 0)) _exit(cannot_change);
            int const beats = wholeshow::play(
                4, [] {}, [](wholeshow::Frame const&) {});
            _exit(beats == scores::show_beats ? 0 : 3);
        }
        End end;
        waitpid(child, &end.status, 0);
        end.output = support::read_all(out);
        end.error = support::read_all(error);
        return end;
    }

    /// @param message  first line of the report, a pattern
    static void ExpectAnswer(Row const& row, End const& end, std::string const& message) {
        EXPECT_THAT(end.output, ContainsRegex(message));
        if (row.need == Need::None) {
            EXPECT_TRUE(WIFEXITED(end.status) && WEXITSTATUS(end.status) == 0) << end.status << end.error;
            EXPECT_EQ(end.error, "");
            return;
        }
        EXPECT_TRUE(WIFSIGNALED(end.status) && WTERMSIG(end.status) == SIGABRT) << end.status << end.error;
        EXPECT_THAT(end.error, HasSubstr(Report(row)));
        if (row.need == Need::Word) {
            std::string const own = "Could not open file data/" + std::string(row.first) + ".asc";
            EXPECT_THAT(end.output, ContainsRegex(faults::error_line(own)));
        }
    }

    static std::string Report(Row const& row) {
        std::string const parameters = "(kore::AscModel_ptr, const string&, const string&): Assertion `";
        std::string const load = R"(models->LoadModel(model_name + ".asc") >= 0)";
        std::string const end = "' failed.";
        if (row.need == Need::Pieces) {
            return "effekt/brokenmodel.cpp:21: effect::BrokenModel::BrokenModel" + parameters + "myModel.get()" + end;
        }
        if (row.file == std::string("weknow.asc")) {
            return "effekt/showmodel.cpp:25: effect::ShowModel::ShowModel" + parameters + load + end;
        }
        return "effekt/simplemodel.cpp:25: effect::SimpleModel::SimpleModel" + parameters + load + end;
    }

    support::TempFolder root;
};

TEST_F(StartUp, IsSilentWithEveryFile) {
    End const end = Play();
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.output, "");
    EXPECT_EQ(end.error, "");
}

TEST_F(StartUp, TableHoldsEveryMeshOfTheShow) {
    std::vector<std::string> names;
    for (Row const& row : rows) names.emplace_back(row.file);
    EXPECT_EQ(names, faults::mesh_files());
}

TEST_F(StartUp, ReportsAFileThatIsMissing) {
    for (Row const& row : rows) {
        SCOPED_TRACE(row.file);
        fs::remove(Path(row.file));
        ExpectAnswer(row, Play(), faults::error_line("Could not open file data/" + std::string(row.file)));
        Restore(row.file);
    }
}

TEST_F(StartUp, ReportsAnEmptyFile) {
    for (Row const& row : rows) {
        SCOPED_TRACE(row.file);
        root.Write("data/" + std::string(row.file), "");
        ExpectAnswer(row, Play(), faults::error_line("Bad file format, vertex count mismatch."));
        Restore(row.file);
    }
}

TEST_F(StartUp, ReportsAFolder) {
    for (Row const& row : rows) {
        SCOPED_TRACE(row.file);
        fs::remove(Path(row.file));
        fs::create_directory(Path(row.file));
        ExpectAnswer(row, Play(), faults::error_line("Could not open file data/" + std::string(row.file)));
        Restore(row.file);
    }
}

TEST_F(StartUp, ReportsAFileThatMayNotBeRead) {
    uid_t const user = geteuid() == 0 ? nobody : 0; // root may read every file
    int const status = Play(user).status;
    if (WIFEXITED(status) && WEXITSTATUS(status) == cannot_change) {
        GTEST_SKIP() << "root may read every file, and cannot become nobody here";
    }
    for (Row const& row : rows) {
        SCOPED_TRACE(row.file);
        chmod(Path(row.file).c_str(), 0);
        ExpectAnswer(row, Play(user), faults::error_line("Could not open file data/" + std::string(row.file)));
        Restore(row.file);
    }
}

TEST_F(StartUp, ReportsAFileCutInHalf) {
    for (Row const& row : rows) {
        SCOPED_TRACE(row.file);
        std::string const text = support::read_all(Path(row.file));
        // Far enough from the middle not to fall between two objects.
        std::string const half = text.substr(0, row.need == Need::Word ? 100 : text.size() / 2);
        std::string const fault = reference::read_asc(half).fault;
        EXPECT_NE(fault, "");
        root.Write("data/" + std::string(row.file), half);
        ExpectAnswer(row, Play(), faults::error_line(fault));
        Restore(row.file);
    }
}

TEST_F(StartUp, ReportsAFileOfNoise) {
    std::minstd_rand generator(132);
    for (Row const& row : rows) {
        SCOPED_TRACE(row.file);
        std::string bytes = faults::noise(fs::file_size(Path(row.file)), generator);
        // Two line ends in a row would end the file early.
        std::replace(bytes.begin(), bytes.end(), '\n', ' ');
        root.Write("data/" + std::string(row.file), bytes);
        ExpectAnswer(row, Play(), faults::error_line("Bad file format, vertex count mismatch."));
        Restore(row.file);
    }
}

TEST_F(StartUp, MissesAModelWhereAFileEndsBetweenTwo) {
    struct {
        char const* file;
        char const* lost; ///< the second model
    } const cuts[] = {
        {"weknow.asc", "Know"},
        {"greetings.asc", "Pixelherds"},
    };
    for (auto const& cut : cuts) {
        SCOPED_TRACE(cut.file);
        std::string const text = support::read_all(Path(cut.file));
        root.Write("data/" + std::string(cut.file), text.substr(0, text.find("Named object:", 1)));
        End const end = Play();
        EXPECT_TRUE(WIFSIGNALED(end.status) && WTERMSIG(end.status) == SIGABRT) << end.status << end.error;
        std::string const own = "Could not open file data/" + std::string(cut.lost) + ".asc";
        EXPECT_THAT(end.output, ContainsRegex(faults::error_line(own)));
        Restore(cut.file);
    }
}

} // namespace
