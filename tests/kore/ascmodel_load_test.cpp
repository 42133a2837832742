// SPDX-License-Identifier: MIT
#include "kore/ascmodel.h"
#include "tests/support/glrecorder.h"
#include "tests/support/temp.h"

#include <algorithm>
#include <cstring>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

using testing::MatchesRegex;

namespace {

constexpr char const* folder = "tests/data/";
constexpr std::size_t nothing_stored = 0;
constexpr uid_t nobody = 65534;

class Loader : public testing::Test {
protected:
    void SetUp() override { gl::reset(gl::Logging::Sums); }

    /// Loads a file by its path; keeps what is printed.
    int Load(std::string const& path, bool full = false) {
        testing::internal::CaptureStdout();
        int const result = models.LoadModelFromFile(path, full);
        printed = testing::internal::GetCapturedStdout();
        return result;
    }

    kore::AscModel models{folder};
    std::string printed;
};

/// The whole of an error line.
std::string line_of(std::string message) {
    if (message.empty()) return "";
    std::string escaped;
    for (char const c : message) escaped += std::strchr("().", c) ? std::string("\\") + c : std::string(1, c);
    return "E: kore/ascmodel\\.cpp:[0-9]+, LoadModelFromFile\\(\\) " + escaped + "\n";
}

struct Row {
    char const* file;
    int result;
    std::size_t stored;
    char const* message; ///< "" for none
};

constexpr char const* vertex_count = "Bad file format, vertex count mismatch.";

// clang-format off
constexpr Row rows[] = {
    {"good.asc",                           0,  1, ""},
    {"two-objects.asc",                    1,  2, ""},
    {"no-final-newline.asc",               0,  1, ""},
    {"unfinished-blank-line.asc",          0,  1, ""},
    {"two-trailing-blank-lines.asc",       0,  1, ""},
    {"line-feeds-only.asc",                0,  1, ""},
    {"second-object-without-name.asc",     1,  2, ""},
    {"embedded-nul.asc",                   0,  1, ""},
    {"face-index-beyond-vertices.asc",     0,  1, ""},
    {"blank-line-after-header.asc",        -1, 0, ""},
    {"blank-line-in-vertices.asc",         -1, 0, ""},
    {"blank-line-before-first-object.asc", -1, 0, ""},
    {"one-trailing-blank-line.asc",        -1, 1, vertex_count},
    {"text-after-blank-line.asc",          -1, 1, vertex_count},
    {"vertex-count-too-low.asc",           -1, 0, vertex_count},
    {"vertex-count-too-high.asc",          -1, 0, vertex_count},
    {"no-vertices.asc",                    -1, 0, vertex_count},
    {"empty.asc",                          -1, 0, vertex_count},
    {"not-a-mesh.asc",                     -1, 0, vertex_count},
    {"bytes-not-text.asc",                 -1, 0, vertex_count},
    {"face-count-too-low.asc",             -1, 0, "Bad file format, face count mismatch. Reported: 3 counted: 4"},
    {"face-count-too-high.asc",            -1, 0, "Bad file format, face count mismatch. Reported: 5 counted: 4"},
    {"no-faces.asc",                       -1, 0, "Bad file format, face count mismatch. Reported: 4 counted: 0"},
    {"second-object-broken.asc",           -1, 1, "Bad file format, face count mismatch. Reported: 9 counted: 4"},
    {"header-counts-zero.asc",             -1, 0, "Bad file format"},
    {"header-counts-negative.asc",         -1, 0, "Bad file format"},
    {"header-counts-missing.asc",          -1, 0, "Bad file format"},
    {"header-counts-overflow.asc",         -1, 0, "Bad file format"},
    {"header-counts-wrap.asc",             -1, 0, "Bad file format"},
    {"face-index-overflow.asc",            -1, 0,
     "Bad file format in tests/data/face-index-overflow.asc: face 0 has no vertex 9223372036854775807."},
    {"face-index-wrap.asc",                -1, 0,
     "Bad file format in tests/data/face-index-wrap.asc: face 0 has no vertex 4294967297."},
    {"face-index-negative.asc",            -1, 0,
     "Bad file format in tests/data/face-index-negative.asc: face 0 has no vertex -1."},
    {"face-index-too-large.asc",           -1, 0,
     "Bad file format in tests/data/face-index-too-large.asc: face 0 has no vertex 100000."},
};
// clang-format on

TEST_F(Loader, AnswersEveryKindOfFile) {
    for (Row const& row : rows) {
        for (bool const full : {false, true}) {
            SCOPED_TRACE(std::string(row.file) + (full ? ", by triangle" : ""));
            models = kore::AscModel(folder);
            int const good = full ? 1 : row.result;
            EXPECT_EQ(Load(std::string(folder) + row.file, full), row.result < 0 ? -1 : good);
            EXPECT_THAT(printed, MatchesRegex(line_of(row.message)));
            EXPECT_EQ(models.size(), full ? nothing_stored : row.stored);
        }
    }
}

TEST_F(Loader, ReportsAFileThatIsNotThere) {
    EXPECT_EQ(Load("tests/data/missing.asc"), -1);
    EXPECT_THAT(printed, MatchesRegex(line_of("Could not open file tests/data/missing.asc")));
    EXPECT_EQ(Load(""), -1);
    EXPECT_THAT(printed, MatchesRegex(line_of("Could not open file ")));
}

TEST_F(Loader, ReportsAFolder) {
    EXPECT_EQ(Load("tests/data"), -1);
    EXPECT_THAT(printed, MatchesRegex(line_of("Could not open file tests/data")));
}

TEST_F(Loader, ReportsAPipeInsteadOfWaitingForAWriter) {
    support::TempFolder const temp;
    ASSERT_EQ(mkfifo(temp.Path("pipe.asc").c_str(), 0600), 0);
    EXPECT_EQ(Load(temp.Path("pipe.asc")), -1);
    EXPECT_THAT(printed, MatchesRegex(line_of("Could not open file " + temp.Path("pipe.asc"))));
}

TEST_F(Loader, ReportsAFileThatMayNotBeRead) {
    support::TempFolder const temp;
    std::string const path = temp.Write("secret.asc", "text");
    ASSERT_EQ(chmod(temp.Path("").c_str(), 0755), 0);
    ASSERT_EQ(chmod(path.c_str(), 0), 0);
    bool const root = geteuid() == 0; // root may read every file
    if (root && seteuid(nobody) != 0) GTEST_SKIP() << "root may read every file, and cannot become nobody here";
    EXPECT_EQ(Load(path), -1);
    EXPECT_THAT(printed, MatchesRegex(line_of("Could not open file " + path)));
    EXPECT_TRUE(!root || seteuid(0) == 0);
}

TEST_F(Loader, PutsTheFolderInFrontOfTheNameAsItIs) {
    EXPECT_EQ(models.GetDirectory(), folder);
    EXPECT_EQ(models.LoadModel("good.asc"), 0);
    EXPECT_EQ(kore::AscModel("tests/data/go").LoadModel("od.asc"), 0);
}

TEST_F(Loader, ReturnsOneOrZeroForThePerTriangleStore) {
    testing::internal::CaptureStdout();
    EXPECT_EQ(models.LoadModelFull("two-objects.asc"), 1);
    EXPECT_EQ(models.LoadModelFull("face-count-too-low.asc"), 0);
    EXPECT_EQ(models.LoadModelFull("missing.asc"), 0);
    testing::internal::GetCapturedStdout();
    ASSERT_TRUE(models.ModelByNameFull("first"));
    EXPECT_EQ(models.ModelByNameFull("second")->count, 4u);
}

TEST_F(Loader, KeepsWhatWasReadBeforeAnError) {
    EXPECT_EQ(Load("tests/data/second-object-broken.asc"), -1);
    unsigned int list = 0;
    EXPECT_TRUE(models.ModelByName("first", list));
    EXPECT_FALSE(models.ModelByName("second", list));
}

TEST_F(Loader, CutsTheNameOnTheAssumptionOfACarriageReturn) {
    Load("tests/data/line-feeds-only.asc"); // its object is called A
    unsigned int list = 0;
    EXPECT_TRUE(models.ModelByName("", list));
    EXPECT_FALSE(models.ModelByName("A", list));
}

TEST_F(Loader, StoresTheObjectsOfAFileLoadedTwiceTwice) {
    EXPECT_EQ(Load("tests/data/two-objects.asc"), 1);
    EXPECT_EQ(Load("tests/data/two-objects.asc"), 3);
    EXPECT_EQ(models.size(), 4u);
}

TEST_F(Loader, GivesAnObjectWithoutANameTheOneBefore) {
    Load("tests/data/second-object-without-name.asc");
    EXPECT_EQ(models.size(), 2u);
    unsigned int list = 0;
    EXPECT_TRUE(models.ModelByName("first", list));
    EXPECT_EQ(list, models.ModelByIndex(0));
}

/// A mesh of any size.
std::string mesh_of(int vertices, int faces) {
    std::string text = "Named object: \"big\"\r\nTri-mesh, Vertices: " + std::to_string(vertices) +
                       "     Faces: " + std::to_string(faces) + "\r\nVertex list:\r\n";
    for (int i = 0; i < vertices; ++i) text += "Vertex " + std::to_string(i) + ":  X:1.0     Y:2.0     Z:3.0\r\n";
    text += "Face list:\r\n";
    for (int i = 0; i < faces; ++i) text += "Face " + std::to_string(i) + ":    A:0 B:0 C:0 AB:1 BC:1 CA:1\r\n";
    return text;
}

std::string fault_in(std::string const& path, std::string const& fault) {
    return fault.empty() ? "" : "Bad file format in " + path + ": " + fault;
}

TEST_F(Loader, TakesAsMuchAsItsTablesHoldAndNoMore) {
    struct {
        int vertices, faces;
        bool full;
        int result;
        char const* fault; ///< behind the name of the file
        // clang-format off
    } const sizes[] = {
        {100000, 1,      false, 0,  ""},
        {1,      100000, false, 0,  ""},
        {100001, 1,      false, -1, "more than 100000 vertices."},
        {1,      100001, false, -1, "more than 100000 faces."},
        {1,      10000,  true,  1,  ""},
        {1,      10001,  true,  -1, "10001 faces are too many to be stored one by one."},
        {100001, 1,      true,  -1, "more than 100000 vertices."},
    };
    // clang-format on
    support::TempFolder const temp;
    for (auto const& size : sizes) {
        SCOPED_TRACE(testing::Message() << size.vertices << " vertices, " << size.faces << " faces");
        models = kore::AscModel(folder);
        std::string const path = temp.Write("big.asc", mesh_of(size.vertices, size.faces));
        EXPECT_EQ(Load(path, size.full), size.result);
        EXPECT_THAT(printed, MatchesRegex(line_of(fault_in(path, size.fault))));
    }
}

TEST_F(Loader, CountsLinesOfAnotherLayoutToo) {
    struct {
        int vertices, faces;
        char const* last; ///< and the line that replaces it
        char const* odd;
        char const* fault; ///< behind the name of the file
    } const meshes[] = {
        {100001, 1, "Vertex 100000:", "Vertex 100000 :", "more than 100000 vertices."},
        {1, 100001, "Face 100000:", "Face 100000 :", "more than 100000 faces."},
    };
    support::TempFolder const temp;
    for (auto const& mesh : meshes) {
        SCOPED_TRACE(mesh.odd);
        std::string text = mesh_of(mesh.vertices, mesh.faces);
        ASSERT_NE(text.find(mesh.last), std::string::npos);
        text.replace(text.find(mesh.last), std::string(mesh.last).size(), mesh.odd);
        std::string const path = temp.Write("big.asc", text);
        EXPECT_EQ(Load(path), -1);
        EXPECT_THAT(printed, MatchesRegex(line_of(fault_in(path, mesh.fault))));
    }
}

TEST_F(Loader, ReadsLinesOfAnyLength) {
    std::string const long_text(1 << 20, 'x');
    std::string const blanks(1 << 20, ' ');
    std::string const good = support::read_all("tests/data/good.asc");
    struct {
        char const* what;
        std::string text;
        int result;
    } const files[] = {
        {"a line before the header", long_text + "\r\n" + good, 0},
        {"a name", "Named object: \"" + long_text + "\"\r\n" + good.substr(good.find("Tri")), 0},
        {"blanks before a number", std::string(good).replace(good.find("X:"), 2, "X:" + blanks), 0},
        {"digits", std::string(good).replace(good.find("X:"), 2, "X:" + std::string(1 << 20, '1')), 0},
        {"a tail after the last face", good.substr(0, good.size() - 2) + long_text, 0},
        {"nothing but one line", long_text, -1},
    };
    support::TempFolder const temp;
    for (auto const& file : files) {
        SCOPED_TRACE(file.what);
        models = kore::AscModel(folder);
        EXPECT_EQ(Load(temp.Write("long.asc", file.text)), file.result);
    }
}

TEST_F(Loader, DoesNotLeaveFilesOpen) {
    auto const open_files = [] {
        return std::distance(std::filesystem::directory_iterator("/proc/self/fd"),
                             std::filesystem::directory_iterator());
    };
    auto const before = open_files();
    for (char const* file :
         {"tests/data/good.asc", "tests/data/no-faces.asc", "tests/data", "tests/data/missing.asc"}) {
        Load(file);
    }
    EXPECT_EQ(open_files(), before);
}

} // namespace
