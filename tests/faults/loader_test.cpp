// SPDX-License-Identifier: MIT
// Every mesh file of the show, cut short and with damaged bytes, through the loader.

#include "kore/ascfile.h"
#include "kore/ascmodel.h"
#include "tests/faults/datafiles.h"
#include "tests/support/reference_asc.h"
#include "tests/support/temp.h"

#include <cstring>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::AnyOf;
using testing::MatchesRegex;

namespace {

constexpr unsigned int seed = 132;

class DamagedMesh : public testing::TestWithParam<std::string> {
protected:
    DamagedMesh() : text(support::read_all(HARDSILENCE_SOURCE_DIR "/data/" + GetParam())) {}

    struct Answer {
        int result;
        std::string printed;
        std::size_t stored;
    };

    /// Loads a text as a file into the library.
    Answer Load(std::string const& damaged, bool full) const {
        std::string const path = folder.Write("mesh.asc", damaged);
        kore::AscModel models("");
        testing::internal::CaptureStdout();
        int const result = models.LoadModelFromFile(path, full);
        return {result, testing::internal::GetCapturedStdout(), models.size()};
    }

    /// Loads a text into both stores; both must agree with what the plain reader finds.
    void ExpectAnswers(std::string const& damaged, reference::File const& expected) const {
        int const last = static_cast<int>(expected.meshes.size()) - 1;
        std::string const line = expected.fault.empty() ? "" : faults::error_line(expected.fault);
        Answer const ordinary = Load(damaged, false);
        EXPECT_EQ(ordinary.result, expected.fault.empty() ? last : -1);
        EXPECT_THAT(ordinary.printed, MatchesRegex(line));
        EXPECT_EQ(ordinary.stored, expected.meshes.size());
        Answer const by_triangle = Load(damaged, true);
        int const good = expected.meshes.empty() ? -1 : 1;
        EXPECT_EQ(by_triangle.result, expected.fault.empty() ? good : -1);
        EXPECT_THAT(by_triangle.printed, MatchesRegex(line));
    }

    support::TempFolder folder;
    std::string text;
};

bool same_bits(std::vector<std::array<float, 3>> const& a, std::vector<std::array<float, 3>> const& b) {
    return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof a[0]) == 0;
}

/// Whether a mesh is the one of the whole file, except for the edges and corners of its last face.
bool same_up_to_last_face(reference::Mesh const& cut, reference::Mesh const& whole) {
    if (cut.name != whole.name || !same_bits(cut.vertices, whole.vertices)) return false;
    return cut.faces.size() == whole.faces.size() &&
           std::equal(cut.faces.begin(), cut.faces.end() - 1, whole.faces.begin()) &&
           std::equal(cut.edges.begin(), cut.edges.end() - 1, whole.edges.begin());
}

/// 50 places in a text of that size: most spread evenly, some close to its end.
std::vector<std::size_t> places(std::size_t size) {
    std::vector<std::size_t> at;
    for (std::size_t i = 0; i < 40; ++i) at.push_back(size * i / 40 + i % 7);
    for (std::size_t i = 0; i < 10; ++i) at.push_back(size - 1 - 4 * i);
    return at;
}

TEST_P(DamagedMesh, IsReportedWhereItIsCutOrHasAllButItsLastFace) {
    reference::File const whole = reference::read_asc(text);
    ASSERT_EQ(whole.fault, "");
    for (std::size_t const at : places(text.size())) {
        SCOPED_TRACE("cut after " + std::to_string(at) + " bytes");
        std::string const cut = text.substr(0, at);
        reference::File const expected = reference::read_asc(cut);
        ExpectAnswers(cut, expected);
        ASSERT_LE(expected.meshes.size(), whole.meshes.size());
        for (std::size_t i = 0; i < expected.meshes.size(); ++i) {
            EXPECT_TRUE(same_up_to_last_face(expected.meshes[i], whole.meshes[i])) << whole.meshes[i].name;
        }
    }
}

TEST_P(DamagedMesh, OfNoiseIsReported) {
    std::minstd_rand generator(seed);
    for (int round = 0; round < 3; ++round) {
        SCOPED_TRACE(round);
        std::string const bytes = faults::noise(text.size(), generator);
        // A line shorter than two characters ends the file early without a fault: then the library is empty.
        reference::File const expected = reference::read_asc(bytes);
        EXPECT_TRUE(expected.meshes.empty());
        ExpectAnswers(bytes, expected);
    }
}

/// The show's reader finds what the plain one does, or a limit that the plain one lacks.
void expect_same_or_limited(std::string const& path, std::string const& damaged) {
    reference::File const expected = reference::read_asc(damaged);
    kore::AscFile file;
    ASSERT_TRUE(file.Open(path));
    for (reference::Mesh const& mesh : expected.meshes) {
        if (file.Next() != kore::AscFile::Result::Object) {
            EXPECT_THAT(file.GetFault(),
                        AnyOf(MatchesRegex("Bad file format in [^:]+: face [0-9]+ has no vertex -?[0-9]+\\."),
                              MatchesRegex("Bad file format in [^:]+: more than 100000 (vertices|faces)\\.")));
            return;
        }
        EXPECT_EQ(file.GetName(), mesh.name);
        ASSERT_EQ(static_cast<std::size_t>(file.GetVertexCount()), mesh.vertices.size());
        EXPECT_EQ(std::memcmp(file.GetVertices(), mesh.vertices.data(), mesh.vertices.size() * 3 * sizeof(float)), 0);
        ASSERT_EQ(static_cast<std::size_t>(file.GetFaceCount()), mesh.faces.size());
        EXPECT_EQ(std::memcmp(file.GetFaces(), mesh.faces.data(), mesh.faces.size() * 3 * sizeof(int)), 0);
        EXPECT_EQ(std::memcmp(file.GetEdges(), mesh.edges.data(), mesh.edges.size() * 3 * sizeof(int)), 0);
    }
}

TEST_P(DamagedMesh, WithSomeWrongBytesIsReportedOrReadLineByLine) {
    std::minstd_rand generator(seed);
    for (int round = 0; round < 20; ++round) {
        SCOPED_TRACE(round);
        std::string damaged = text;
        for (int i = 0; i <= round; ++i) damaged[generator() % damaged.size()] = static_cast<char>(generator() >> 8);
        for (bool const full : {false, true}) {
            Answer const answer = Load(damaged, full);
            EXPECT_THAT(answer.printed, MatchesRegex(answer.result < 0 ? "E: kore/ascmodel\\.cpp:[0-9]+, "
                                                                         "LoadModelFromFile\\(\\) Bad file format.*\n|"
                                                                       : ""));
        }
        expect_same_or_limited(folder.Path("mesh.asc"), damaged);
    }
}

std::string name_of(testing::TestParamInfo<std::string> const& info) {
    std::string name = info.param.substr(0, info.param.find('.'));
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Data, DamagedMesh, testing::ValuesIn(faults::mesh_files()), name_of);

} // namespace
