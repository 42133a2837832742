// SPDX-License-Identifier: MIT
#include "kore/ascmodel.h"
#include "tests/support/glstate.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

constexpr GLfloat verts[4][3] = {
    {0, 0, 0},
    {1, 0, 0},
    {0, 1, 0},
    {0, 0, 1},
};
constexpr int faces[3][3] = {
    {0, 1, 2},
    {0, 2, 3},
    {3, 1, 0},
};

class AscModel : public testing::Test {
protected:
    void SetUp() override { gl::reset(); }

    /// The wireframe list of one face ABC with these edge flags.
    std::string Wireframe(int ab, int bc, int ca) {
        int const edges[1][3] = {{ab, bc, ca}};
        int const index = models.GenList("one", 4, 1, 1, verts, faces, edges);
        EXPECT_EQ(index, static_cast<int>(models.size()) - 1);
        return gl::list_content(models.ModelByIndex(index) + 1);
    }

    kore::AscModel models{"tests/data/"};
};

TEST_F(AscModel, IsEmptyAtFirst) {
    unsigned int list = 17;
    EXPECT_EQ(models.size(), 0u);
    EXPECT_FALSE(models.ModelByName("boat", list));
    EXPECT_FALSE(models.WfByName("boat", list));
    EXPECT_EQ(list, 17u); // left as it was
    EXPECT_FALSE(models.ModelByNameFull("boat"));
    EXPECT_STREQ(models.Name(), "AscModel");
}

TEST_F(AscModel, CompilesTheTrianglesAndTheVisibleEdges) {
    int const edges[3][3] = {
        {1, 0, 1},
        {0, 1, 0},
        {0, 0, 0},
    };
    EXPECT_EQ(models.GenList("boat", 4, 3, 3, verts, faces, edges), 0);
    unsigned int solid = 0;
    unsigned int wireframe = 0;
    ASSERT_TRUE(models.ModelByName("boat", solid));
    ASSERT_TRUE(models.WfByName("boat", wireframe));
    EXPECT_EQ(models.ModelByIndex(0), solid);
    EXPECT_EQ(gl::list_content(solid), "Begin(TRIANGLES) Vertex(0,0,0) Vertex(1,0,0) Vertex(0,1,0) "
                                       "Vertex(0,0,0) Vertex(0,1,0) Vertex(0,0,1) "
                                       "Vertex(0,0,1) Vertex(1,0,0) Vertex(0,0,0) End");
    EXPECT_EQ(gl::list_content(wireframe), "LineWidth(1) Begin(LINES) Vertex(0,0,0) Vertex(1,0,0) "
                                           "Vertex(0,1,0) Vertex(0,0,1) Vertex(0,0,1) Vertex(0,0,0) End");
    EXPECT_EQ(gl::calls(), "GenLists(1) NewList(COMPILE,1) EndList GenLists(1) NewList(COMPILE,2) EndList");
}

TEST_F(AscModel, DrawsTheEdgeCAByTheFlagOfBC) {
    std::string const ab = " Vertex(0,0,0) Vertex(1,0,0)";
    std::string const bc = " Vertex(1,0,0) Vertex(0,1,0)";
    std::string const ca = " Vertex(0,1,0) Vertex(0,0,0)";
    struct {
        int flags[3];
        std::string segments;
        // clang-format off
    } const rows[] = {
        {{0, 0, 0},  ""},
        {{1, 0, 0},  ab},
        {{0, 1, 0},  bc + ca},
        {{0, 0, 1},  ""},           // CA's own flag is ignored
        {{1, 0, 1},  ab},
        {{1, 1, 0},  ab + bc + ca},
        {{1, 1, 1},  ab + bc + ca},
        {{2, 1, 0},  bc + ca},      // neither 0 nor 1: draws nothing
        {{1, 2, 1},  ab},
        {{-1, 0, 0}, ""},
    };
    // clang-format on
    for (auto const& row : rows) {
        SCOPED_TRACE(testing::Message() << row.flags[0] << row.flags[1] << row.flags[2]);
        EXPECT_EQ(Wireframe(row.flags[0], row.flags[1], row.flags[2]),
                  "LineWidth(1) Begin(LINES)" + row.segments + " End");
    }
}

TEST_F(AscModel, KeepsTheTriangleOfAFaceWithoutVisibleEdges) {
    Wireframe(0, 0, 0);
    EXPECT_EQ(gl::list_content(models.ModelByIndex(0)),
              "Begin(TRIANGLES) Vertex(0,0,0) Vertex(1,0,0) Vertex(0,1,0) End");
}

TEST_F(AscModel, TakesTheEdgesOfItsOwnNumberOfFaces) {
    int const edges[3][3] = {
        {1, 0, 0},
        {1, 0, 0},
        {1, 0, 0},
    };
    models.GenList("boat", 4, 3, 1, verts, faces, edges);
    EXPECT_EQ(gl::list_content(2), "LineWidth(1) Begin(LINES) Vertex(0,0,0) Vertex(1,0,0) End");
    models.GenList("ship", 4, 1, 2, verts, faces, edges);
    EXPECT_EQ(gl::list_content(3), "Begin(TRIANGLES) Vertex(0,0,0) Vertex(1,0,0) Vertex(0,1,0) End");
}

TEST_F(AscModel, FindsTheFirstOfSeveralWithOneName) {
    EXPECT_EQ(models.LoadModel("good.asc"), 0);
    EXPECT_EQ(models.LoadModel("same-name.asc"), 1);
    unsigned int list = 0;
    EXPECT_TRUE(models.ModelByName("pyramid", list));
    EXPECT_EQ(list, models.ModelByIndex(0));
    EXPECT_NE(list, models.ModelByIndex(1));

    EXPECT_EQ(models.LoadModelFull("good.asc"), 1);
    EXPECT_EQ(models.LoadModelFull("same-name.asc"), 1);
    EXPECT_EQ(models.ModelByNameFull("pyramid")->count, 4u);
}

TEST_F(AscModel, TellsTheNameOfAnObjectByItsTriangles) {
    int const edges[3][3] = {};
    models.GenList("boat", 4, 3, 3, verts, faces, edges);
    models.GenList("ship", 4, 3, 3, verts, faces, edges);
    EXPECT_EQ(models.NameOf(models.ModelByIndex(0)), "boat");
    EXPECT_EQ(models.NameOf(models.ModelByIndex(1)), "ship");
    unsigned int lines = 0;
    ASSERT_TRUE(models.WfByName("ship", lines));
    EXPECT_EQ(models.NameOf(lines), "");
    EXPECT_EQ(models.NameOf(17), "");
}

TEST_F(AscModel, ComparesWholeNamesExactly) {
    models.LoadModel("good.asc");
    unsigned int list = 0;
    for (char const* name : {"Pyramid", "pyrami", "pyramids", " pyramid", ""}) {
        EXPECT_FALSE(models.ModelByName(name, list)) << name;
    }
}

TEST_F(AscModel, KeepsItsTwoStoresApart) {
    unsigned int list = 0;
    models.LoadModel("good.asc");
    EXPECT_FALSE(models.ModelByNameFull("pyramid"));
    kore::AscModel others("tests/data/");
    others.LoadModelFull("good.asc");
    EXPECT_FALSE(others.ModelByName("pyramid", list));
    EXPECT_EQ(others.size(), 0u);
}

TEST_F(AscModel, LoadsWhatTheFileSays) {
    models.LoadModel("good.asc");
    unsigned int wireframe = 0;
    models.WfByName("pyramid", wireframe);
    EXPECT_EQ(gl::list_content(wireframe),
              "LineWidth(1) Begin(LINES) Vertex(0,0,0) Vertex(1,0,0) "
              "Vertex(0,1,0) Vertex(0,0,1) Vertex(0,0,1) Vertex(0,0,0) "
              "Vertex(1,0,0) Vertex(0,1,0) Vertex(0,1,0) Vertex(0,0,1) Vertex(0,0,1) Vertex(1,0,0) End");
}

TEST_F(AscModel, CompilesEveryTriangleAndEveryOutlineByItself) {
    int const no_edges[3][3] = {};
    EXPECT_EQ(models.GenListFull("boat", 4, 3, 3, verts, faces, no_edges), 1);
    auto const full = models.ModelByNameFull("boat");
    ASSERT_TRUE(full);
    EXPECT_EQ(full->name, "boat");
    ASSERT_EQ(full->count, 3u);
    EXPECT_EQ(gl::list_content(full->face_models[1]), "Begin(TRIANGLES) Vertex(0,0,0) Vertex(0,1,0) Vertex(0,0,1) End");
    // All three edges, whatever the flags say, and the line width inside the primitive.
    EXPECT_EQ(gl::list_content(full->face_wireframes[1]),
              "Begin(LINES) LineWidth(1) Vertex(0,0,0) Vertex(0,1,0) Vertex(0,1,0) Vertex(0,0,1) "
              "Vertex(0,0,1) Vertex(0,0,0) End");
    for (unsigned int i = 0; i < 3; ++i) {
        EXPECT_EQ(full->face_models[i], full->face_models[0] + i);
        EXPECT_EQ(full->face_wireframes[i], full->face_wireframes[0] + i);
    }
    EXPECT_EQ(gl::calls(), "GenLists(3) NewList(COMPILE,1) EndList NewList(COMPILE,2) EndList NewList(COMPILE,3) "
                           "EndList GenLists(3) NewList(COMPILE,4) EndList NewList(COMPILE,5) EndList "
                           "NewList(COMPILE,6) EndList");
}

constexpr char const* signature = "int kore::AscModel::GenListFull\\(const string&, int, int, int, "
                                  "const GLfloat \\(\\*\\)\\[3\\], const int \\(\\*\\)\\[3\\], "
                                  "const int \\(\\*\\)\\[3\\]\\)";

std::string report_of(std::string const& expression) {
    return std::string("kore_test: kore/ascmodel\\.cpp:[0-9]+: ") + signature + ": Assertion `" + expression +
           "' failed\\.";
}

using AscModelDeathTest = AscModel;

TEST_F(AscModelDeathTest, StopsWhereTheTwoCountsDiffer) {
    EXPECT_DEATH(models.GenListFull("boat", 4, 3, 2, verts, faces, faces), report_of("tris_count == lines_count"));
}

TEST_F(AscModelDeathTest, StopsWhereThereAreNoListsForTheTriangles) {
    gl::detail::state().next_list = 0;
    EXPECT_DEATH(models.GenListFull("boat", 4, 3, 3, verts, faces, faces), report_of("model_start"));
}

TEST_F(AscModelDeathTest, StopsWhereThereAreNoListsForTheOutlines) {
    gl::detail::state().next_list = static_cast<unsigned int>(-3); // the three after these are 0, 1 and 2
    EXPECT_DEATH(models.GenListFull("boat", 4, 3, 3, verts, faces, faces), report_of("wireframe_start"));
}

} // namespace
