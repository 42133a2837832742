// SPDX-License-Identifier: MIT
// The whole show with one damaged mesh file after another, each time in a process of its own: the show may abort with
// an assertion report.

#include "tests/faults/datafiles.h"
#include "tests/show/scores.h"
#include "tests/show/wholeshow.h"
#include "tests/support/command.h"
#include "tests/support/reference_asc.h"
#include "tests/support/temp.h"

#include <csignal>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;
using support::Outcome;
using testing::ContainsRegex;
using testing::HasSubstr;

namespace {

constexpr uid_t nobody = 65534;
constexpr int cannot_change_user = 2;       ///< exit status of the child
constexpr int too_short_or_long = 3;        ///< the same
constexpr std::chrono::seconds longest{10}; ///< more than this is a hang

/// What the show does without the file.
enum class Need {
    Ordinary, ///< ends: a model of the ordinary store
    Pieces,   ///< ends: a model by triangle
    Word,     ///< ends: one of several models in one file; the show then looks for a file of that name
    None,     ///< continues and does not draw it
};

struct Row {
    char const* file;
    Need need;
    char const* first; ///< of several models: the first one looked for
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

    /// Plays the whole show, a few frames a beat, on an OpenGL that does nothing.
    /// @param user  who plays it; 0 for the user who runs the test
    Outcome Play(uid_t user = 0) const {
        auto const play = [user] {
            if (user != 0 && setuid(user) != 0) return cannot_change_user;
            int const beats = wholeshow::play(
                4, [] {}, [](wholeshow::Frame const&) {});
            return beats == scores::show_beats ? 0 : too_short_or_long;
        };
        return support::run_in_child(play, {.folder = root.Path(""), .limit = longest});
    }

    /// @param message  first line of the report, a pattern
    static void ExpectAnswer(Row const& row, Outcome const& end, std::string const& message) {
        EXPECT_THAT(end.output, ContainsRegex(message));
        if (row.need == Need::None) {
            EXPECT_EQ(end.status, 0) << end.error;
            EXPECT_EQ(end.error, "");
            return;
        }
        EXPECT_EQ(end.signal, SIGABRT) << end.error;
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
    Outcome const end = Play();
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
    if (Play(user).status == cannot_change_user) {
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
        Outcome const end = Play();
        EXPECT_EQ(end.signal, SIGABRT) << end.error;
        std::string const own = "Could not open file data/" + std::string(cut.lost) + ".asc";
        EXPECT_THAT(end.output, ContainsRegex(faults::error_line(own)));
        Restore(cut.file);
    }
}

} // namespace
