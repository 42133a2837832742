// SPDX-License-Identifier: MIT
// What the mesh tool does to a mesh, and what it finds wrong with one.

#include "tools/asc/check.h"
#include "tools/asc/creases.h"
#include "tools/asc/refine.h"
#include "tools/asc/repair.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace {

/// A cube of side 2 around the origin, faces outward, flags not yet set.
asc::Object cube() {
    asc::Object object{"cube", {}, {}};
    for (int i = 0; i < 8; ++i) object.vertices.push_back({i & 1 ? 1.0 : -1.0, i & 2 ? 1.0 : -1.0, i & 4 ? 1.0 : -1.0});
    for (auto const& q :
         {std::array{0, 2, 3, 1}, {4, 5, 7, 6}, {0, 1, 5, 4}, {2, 6, 7, 3}, {0, 4, 6, 2}, {1, 3, 7, 5}}) {
        object.faces.push_back({{q[0], q[1], q[2]}, {}});
        object.faces.push_back({{q[0], q[2], q[3]}, {}});
    }
    return object;
}

/// A flat square of side 2 with a square hole of side 1, at z = 0.
asc::Object square_with_hole() {
    asc::Object object{
        "frame",
        {{-1, -1, 0}, {1, -1, 0}, {1, 1, 0}, {-1, 1, 0}, {-.5, -.5, 0}, {.5, -.5, 0}, {.5, .5, 0}, {-.5, .5, 0}},
        {}};
    for (int i = 0; i < 4; ++i) {
        int const j = (i + 1) % 4;
        object.faces.push_back({{i, j, 4 + j}, {}});
        object.faces.push_back({{i, 4 + j, 4 + i}, {}});
    }
    return object;
}

std::vector<std::string> fault_texts(asc::Object const& object, bool shattered = false) {
    std::vector<std::string> texts;
    for (asc::Fault const& fault : asc::faults_of(asc::ReadObject{object, 1, {}, {}}, shattered)) {
        texts.push_back(fault.text);
    }
    return texts;
}

/// Two cubes side by side.
asc::Object two_cubes() {
    asc::Object both = cube();
    for (asc::Vec3 p : cube().vertices) both.vertices.push_back({p.x + 5, p.y, p.z});
    for (asc::Face face : cube().faces) both.faces.push_back({{face.v[0] + 8, face.v[1] + 8, face.v[2] + 8}, {}});
    return both;
}

double area(asc::Object const& object) {
    double sum = 0.0;
    for (asc::Face const& face : object.faces) sum += 0.5 * asc::length(asc::face_normal(object, face));
    return sum;
}

TEST(AscMesh, PartsAreConnectedByTheEdgesThatJoinThem) {
    asc::Object const object = two_cubes();
    asc::Edges const edges = asc::edges_of(object);
    auto const cubes = asc::parts_of(object, edges, [](auto const&) { return true; });
    ASSERT_EQ(cubes.size(), 2U);
    for (std::size_t f = 0; f < 24; ++f) EXPECT_EQ(cubes[f / 12][f % 12], f);
    std::set<asc::Edge> const shown = asc::creases(object);
    auto const sides = asc::parts_of(object, edges, [&](auto const& edge) { return !shown.contains(edge.first); });
    ASSERT_EQ(sides.size(), 12U);
    for (std::size_t f = 0; f < 24; ++f) EXPECT_EQ(sides[f / 2][f % 2], f) << "two triangles each";
    EXPECT_EQ(asc::parts_of(object, edges, [](auto const&) { return false; }).size(), 24U);
}

TEST(AscCreases, OfACubeAreItsTwelveEdgesAndNoDiagonal) {
    asc::Object const object = cube();
    std::set<asc::Edge> const found = asc::creases(object);
    EXPECT_EQ(found.size(), 12U);
    for (auto const& [a, b] : found) EXPECT_TRUE((a ^ b) == 1 || (a ^ b) == 2 || (a ^ b) == 4) << a << "-" << b;
}

TEST(AscCreases, OfAFlatShapeAreItsOutlines) { EXPECT_EQ(asc::creases(square_with_hole()).size(), 8U); }

TEST(AscCreases, FlagsDrawExactlyTheCreasesWhicheverCornerAFaceStartsWith) {
    for (int turn = 0; turn < 3; ++turn) {
        asc::Object object = cube();
        for (asc::Face& face : object.faces) std::rotate(face.v.begin(), face.v.begin() + turn, face.v.end());
        asc::flag_creases(object);
        EXPECT_EQ(asc::drawn_edges(object), asc::creases(object));
        EXPECT_GT(asc::volume(object), 0.0) << "the winding must stay";
    }
}

TEST(AscCreases, FlagsOfOneTwoAndThreeVisibleEdges) {
    // Two triangles of a square show two edges each; a third one hangs on the diagonal of the second square.
    asc::Object two{"two", {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}}, {{{0, 1, 2}, {}}, {{0, 2, 3}, {}}}};
    asc::flag_creases(two);
    for (asc::Face const& face : two.faces) EXPECT_EQ(face.edge, (std::array{0, 1, 1}));
    asc::Object three{"three", {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}}, {{{0, 1, 2}, {}}}};
    asc::flag_creases(three);
    EXPECT_EQ(three.faces[0].edge, (std::array{1, 1, 1}));
    asc::Object strip{"strip",
                      {{0, 0, 0}, {2, 0, 0}, {1, 1, 0}, {3, 1, 0}, {-1, 1, 0}},
                      {{{0, 1, 2}, {}}, {{2, 1, 3}, {}}, {{0, 2, 4}, {}}}};
    asc::flag_creases(strip);
    EXPECT_EQ(strip.faces[0].edge, (std::array{1, 0, 0}));
    EXPECT_EQ(strip.faces[0].v, (std::array{0, 1, 2}));
}

TEST(AscCreases, TheFlagCAAloneDrawsNothing) {
    asc::Object const object{"one", {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}}, {{{0, 1, 2}, {0, 0, 1}}}};
    EXPECT_TRUE(asc::drawn_edges(object).empty());
}

TEST(AscRepair, CleanJoinsVerticesAndDropsWhatIsDuplicateOrUnused) {
    asc::Object object = cube();
    object.vertices.push_back({5, 5, 5});           // unused
    object.vertices.push_back({-1, -1, -1.000001}); // where vertex 0 is
    object.faces.push_back({{9, 2, 3}, {}});        // face 0 once more
    object.faces.push_back({{0, 9, 3}, {}});        // without area once joined
    asc::clean(object);
    EXPECT_EQ(object.vertices.size(), 8U);
    EXPECT_EQ(object.faces.size(), 12U);
}

TEST(AscRepair, CleanJoinsWhatIsCloserThanTheDistance) {
    for (asc::Vec3 const& aside : {asc::Vec3{1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {-1, 0, 0}, {0, -1, 0}, {0, 0, -1}}) {
        for (double const away : {0.009, 0.011}) {
            asc::Object object = cube();
            object.vertices.push_back(object.vertices[7] + aside * away);
            object.faces[3].v[2] = 8; // instead of 7
            asc::clean(object, 0.01);
            EXPECT_EQ(object.vertices.size(), away < 0.01 ? 8U : 9U) << aside.x << ' ' << aside.y << ' ' << aside.z;
        }
    }
}

TEST(AscRepair, CleanTakesAThinFaceOutWithoutOpeningAGap) {
    // The lower triangle's base 0-1 carries a thin face with its tip in the middle of the base.
    asc::Object object{"thin",
                       {{0, 0, 0}, {2, 0, 0}, {1, 0, 0}, {1, 1, 0}, {1, -1, 0}},
                       {{{0, 1, 3}, {}}, {{1, 0, 2}, {}}, {{0, 4, 2}, {}}, {{2, 4, 1}, {}}}};
    asc::clean(object);
    EXPECT_EQ(object.faces.size(), 4U);
    EXPECT_DOUBLE_EQ(area(object), 2.0);
    int ends = 0;
    for (auto const& [edge, sides] : asc::edges_of(object)) ends += sides.size() == 1 ? 1 : 0;
    EXPECT_EQ(ends, 4);
}

TEST(AscRepair, WindTurnsAClosedMeshOutwardWhicheverFacesWereTurned) {
    for (unsigned mask : {0U, 1U, 0xFFFU, 0x555U}) {
        asc::Object object = cube();
        for (std::size_t f = 0; f < object.faces.size(); ++f) {
            if (mask >> f & 1U) std::swap(object.faces[f].v[0], object.faces[f].v[1]);
        }
        asc::wind(object);
        EXPECT_DOUBLE_EQ(asc::volume(object), 8.0) << mask;
        asc::flag_creases(object);
        EXPECT_EQ(fault_texts(object), std::vector<std::string>{});
    }
}

TEST(AscRepair, WindTurnsEveryClosedPartByItself) {
    asc::Object object = two_cubes();
    for (std::size_t f = 12; f < 24; ++f) std::swap(object.faces[f].v[0], object.faces[f].v[1]);
    asc::wind(object);
    EXPECT_DOUBLE_EQ(asc::volume(object), 16.0);
}

TEST(AscRepair, WindTurnsAFlatMeshToTheViewer) {
    asc::Object object = square_with_hole();
    for (asc::Face& face : object.faces) std::swap(face.v[1], face.v[2]);
    std::swap(object.faces[3].v[1], object.faces[3].v[2]);
    asc::wind(object);
    for (asc::Face const& face : object.faces) EXPECT_GT(asc::face_normal(object, face).z, 0.0);
}

TEST(AscRepair, KeepLowestPlaneLeavesTheFootOfAnExtrusion) {
    asc::Object object = cube();
    asc::keep_lowest_plane(object);
    EXPECT_EQ(object.faces.size(), 2U);
    EXPECT_EQ(object.vertices.size(), 4U);
    EXPECT_DOUBLE_EQ(asc::box_of(object).high.z, -1.0);
}

TEST(AscRepair, CentreMovesTheMiddleOfTheBox) {
    asc::Object object = cube();
    asc::centre(object, {-1.5, 0, 3});
    EXPECT_EQ(asc::box_of(object).low, (asc::Vec3{-2.5, -1, 2}));
    EXPECT_EQ(asc::box_of(object).high, (asc::Vec3{-0.5, 1, 4}));
}

TEST(AscRefine, CutsAFlatShapeEvenlyAndKeepsItsHole) {
    asc::Object object = square_with_hole();
    ASSERT_TRUE(asc::refine(object, 0.25, 25.0));
    EXPECT_NEAR(area(object), 3.0, 1e-5);
    EXPECT_GT(object.faces.size(), 100U);
    for (asc::Face const& face : object.faces) {
        EXPECT_GT(asc::smallest_angle(object, face), 24.9);
        for (std::size_t i = 0; i < 3; ++i) {
            auto const at = [&](std::size_t k) { return object.vertices[static_cast<std::size_t>(face.v[k % 3])]; };
            EXPECT_LE(asc::length(at(i + 1) - at(i)), 0.25001);
        }
    }
    EXPECT_EQ(asc::box_of(object).high, (asc::Vec3{1, 1, 0}));
}

TEST(AscRefine, KeepsASolidClosedWithoutTJunctions) {
    asc::Object object = cube();
    ASSERT_TRUE(asc::refine(object, 0.45, 25.0));
    EXPECT_TRUE(asc::closed(asc::edges_of(object)));
    EXPECT_NEAR(asc::volume(object), 8.0, 1e-4);
    asc::flag_creases(object);
    EXPECT_EQ(fault_texts(object, true), std::vector<std::string>{});
    for (auto const& [a, b] : asc::creases(object)) {
        asc::Vec3 const p = object.vertices[static_cast<std::size_t>(a)],
                        q = object.vertices[static_cast<std::size_t>(b)];
        int const on_edge = (std::abs(p.x) == 1 && p.x == q.x) + (std::abs(p.y) == 1 && p.y == q.y) +
                            (std::abs(p.z) == 1 && p.z == q.z);
        EXPECT_EQ(on_edge, 2) << "a crease that is no edge of the cube";
    }
}

TEST(AscRefine, GivesTheSameMeshEveryTime) {
    asc::Object first = cube(), second = cube();
    ASSERT_TRUE(asc::refine(first, 0.3, 25.0));
    ASSERT_TRUE(asc::refine(second, 0.3, 25.0));
    EXPECT_EQ(asc::write({first}), asc::write({second}));
}

TEST(AscCheck, FindsNothingWrongWithAGoodMesh) {
    asc::Object object = cube();
    asc::flag_creases(object);
    EXPECT_EQ(fault_texts(object, true), std::vector<std::string>{});
}

TEST(AscCheck, FindsEachFault) {
    asc::Object good = cube();
    asc::flag_creases(good);
    auto const broken = [&](auto const& change) {
        asc::Object object = good;
        change(object);
        return fault_texts(object);
    };
    auto const contains = [](std::vector<std::string> const& texts, std::string const& part) {
        return std::any_of(texts.begin(), texts.end(),
                           [&](auto const& text) { return text.find(part) != std::string::npos; });
    };
    EXPECT_TRUE(contains(broken([](auto& o) { o.vertices.push_back({3, 0, 0}); }), "vertex 8 belongs to no face"));
    EXPECT_TRUE(
        contains(broken([](auto& o) { o.vertices.push_back(o.vertices[2]); }), "vertex 8 stands where vertex 2 does"));
    EXPECT_TRUE(contains(broken([](auto& o) { o.faces.push_back(o.faces[4]); }), "face 12 repeats face 4"));
    EXPECT_TRUE(contains(broken([](auto& o) { o.faces[1].v[1] = o.faces[1].v[0]; }), "face 1 has no area"));
    EXPECT_TRUE(
        contains(broken([](auto& o) { std::swap(o.faces[5].v[0], o.faces[5].v[1]); }), "wound against each other"));
    EXPECT_TRUE(contains(broken([](auto& o) {
                             for (auto& face : o.faces) std::swap(face.v[0], face.v[1]);
                         }),
                         "its faces look inward"));
    EXPECT_TRUE(contains(broken([](auto& o) {
                             o.faces[0].edge = {0, 0, 0};
                             o.faces[1].edge = {0, 0, 0};
                         }),
                         "is a crease and is not drawn") ||
                contains(broken([](auto& o) {
                             for (auto& face : o.faces) face.edge = {0, 0, 0};
                         }),
                         "is a crease and is not drawn"));
    EXPECT_TRUE(contains(broken([](auto& o) { o.faces[0].edge = {1, 1, 1}; }), "is drawn and is no crease"));
}

TEST(AscCheck, ReportsAShatteredMeshWithTooManyFaces) {
    asc::Object strip{"strip", {{0, 0, 0}, {0, 1, 0}}, {}};
    for (int i = 1; i <= 5001; ++i) {
        strip.vertices.push_back({0.5 * i, 0, 0});
        strip.vertices.push_back({0.5 * i, 1, 0});
        int const a = 2 * i - 2;
        strip.faces.push_back({{a, a + 2, a + 1}, {}});
        strip.faces.push_back({{a + 1, a + 2, a + 3}, {}});
    }
    asc::flag_creases(strip);
    EXPECT_EQ(fault_texts(strip, false), std::vector<std::string>{});
    EXPECT_EQ(fault_texts(strip, true),
              std::vector<std::string>{"object 'strip': more than 10000 faces, too many to be shattered"});
}

} // namespace
