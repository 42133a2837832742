// Every mesh in data/: what it holds, how big it is, and that the show can load, outline and shatter it.

#include "tools/asc/ascfile.h"
#include "tools/asc/check.h"
#include "tools/asc/mesh.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <map>
#include <ostream>
#include <set>
#include <string>
#include <vector>

namespace {

std::string const data_folder = HARDSILENCE_SOURCE_DIR "/data/";

enum Kind { flat, flat_shattered, solid, solid_shattered };
bool is_flat(Kind kind) { return kind == flat || kind == flat_shattered; }
bool is_shattered(Kind kind) { return kind == flat_shattered || kind == solid_shattered; }

char const* const same = ""; ///< a file named like its one object

/// What one object should be. Centre and half extents of its box are in units of the mesh.
struct Model {
    char const* in_file;
    char const* object;
    Kind kind;
    asc::Vec3 centre, half;
    double tolerance; ///< of each side of the box, units
    int fewest, most; ///< faces

    std::string file() const { return *in_file ? in_file : object; }
};
[[maybe_unused]] void PrintTo(Model const& model, std::ostream* out) { *out << model.object; }

std::vector<Model> const models = {
    // file, object, kind, centre, half extents, tolerance, faces
    {"weknow", "We", solid, {-1.5, 0, 0}, {4.5, 4.8, 0.6}, 0.02, 80, 900},
    {"weknow", "Know", solid, {-1.5, 0, 0}, {8.82, 4.8, 0.6}, 0.02, 100, 900},
    {"weknow", "What", solid, {-1.5, 0, 0}, {8.73, 4.8, 0.6}, 0.02, 100, 900},
    {"weknow", "Are", solid, {-1.5, 0, 0}, {5.76, 4.8, 0.6}, 0.02, 100, 900},
    {"weknow", "Doing", solid, {-1.5, 0, 0}, {8.78, 4.8, 0.6}, 0.02, 100, 900},
    {"weknow", "QUILLONx", solid, {-0.5, 0, 0}, {15, 4.6, 0.8}, 0.02, 200, 1500},
    {same, "glass", flat_shattered, {0, 0, 0}, {3.6, 3.2, 0}, 0.001, 200, 350},
    {same, "gungirl_silhouette", flat_shattered, {0, 0, 0}, {1.7, 4.75, 0}, 0.35, 1000, 1600},
    {same, "donut2", solid, {0, 0, 0}, {0.92, 0.92, 0.04}, 0.001, 1000, 1500},
    {same, "framecube", solid_shattered, {0, 0, 0}, {6.062, 6.062, 6.062}, 0.001, 500, 900},
    {same, "frametetrahedron", solid_shattered, {0, 0, 0}, {6.062, 6.062, 6.062}, 0.001, 500, 900},
    {same, "frameoctoball", solid_shattered, {0, 0, 0}, {6.5, 6.5, 6.5}, 0.001, 400, 600},
    {same, "spikeydodecahedron", solid_shattered, {0, 0, 0}, {8.507, 8.507, 8.507}, 0.001, 300, 900},
    {same, "infinity", solid_shattered, {0, 0, 0}, {4.9, 4.9, 10}, 0.1, 400, 900},
    {same, "maltanristi", solid_shattered, {0, 0, 0}, {6.06, 6.06, 8.02}, 0.02, 400, 900},
    {same, "gun_silhouette", flat, {0, 0, 0}, {4, 2.5, 0}, 1.2, 50, 600},
    {same, "credits", flat, {-0.9, -3.5, 0}, {3.2, 7.5, 0}, 0.2, 300, 3000},
    {same, "butt_silhouette", flat, {0.9, 0, 0}, {1.3, 4.5, 0}, 0.4, 300, 2500},
    {same, "side2_silhouette", flat, {0.9, 0, 0}, {1.3, 4.5, 0}, 0.4, 300, 2500},
    {same, "sideview_silhouette", flat, {-0.9, 0, 0}, {1.3, 4.5, 0}, 0.4, 300, 2500},
    {same, "torus2", solid, {0, 0, 0}, {3.62, 3.62, 0.42}, 0.001, 400, 600},
    {same, "tentacles_silhouette", flat, {0, 0, -0.02}, {5, 5, 0}, 2.5, 400, 2500},
    {same, "QUILLONx-title", flat, {0, 0, 0}, {36, 7.5, 0}, 0.01, 80, 1500},
    {same, "HARD-title", flat, {0, 0.04, 0}, {0.6, 0.26, 0}, 0.001, 60, 600},
    {same, "SILENCE-title", flat, {0, -0.3, 0}, {2.8, 0.58, 0}, 0.005, 80, 900},
    {same, "hollowsoccerball", solid, {0, 0, 0}, {3.918, 3.918, 3.918}, 0.001, 1000, 2000},
    {same, "frameicosahedron", solid, {0, 0, 0}, {1.7013, 1.7013, 1.7013}, 0.001, 300, 1500},
    {"greetings", "Arbalest", solid, {0, 0.16, 0}, {1.78, 0.52, 0.1}, 0.02, 200, 1800},
    {"greetings", "Pixelherds", solid, {0, 0.16, 0}, {2.12, 0.52, 0.1}, 0.02, 200, 1800},
    {"greetings", "Lanternfly", solid, {0, 0.16, 0}, {2.16, 0.52, 0.1}, 0.02, 200, 1800},
    {"greetings", "Mirevolt", solid, {0, 0.16, 0}, {1.69, 0.52, 0.1}, 0.02, 200, 1800},
    {"greetings", "Quartzine", solid, {0, 0.16, 0}, {1.9, 0.52, 0.1}, 0.02, 200, 1800},
    {"greetings", "Tundrabeat", solid, {0, 0.16, 0}, {2.29, 0.52, 0.1}, 0.02, 200, 1800},
    {"greetings", "Obelisk_K", solid, {0, 0.16, 0}, {1.76, 0.52, 0.1}, 0.02, 200, 1800},
    {"greetings", "Heavy_Cart", solid, {0, 0.16, 0}, {2.13, 0.52, 0.1}, 0.02, 200, 1800},
};

std::set<std::string> files() {
    std::set<std::string> all;
    for (Model const& model : models) all.insert(model.file());
    return all;
}

std::string text_of(std::string const& file) {
    std::string text;
    EXPECT_TRUE(asc::read_text(data_folder + file + ".asc", text)) << file;
    return text;
}

asc::ReadFile const& read(std::string const& file) {
    static std::map<std::string, asc::ReadFile> all;
    auto const found = all.find(file);
    return found != all.end() ? found->second : all.emplace(file, asc::parse(text_of(file))).first->second;
}

asc::Object const* find(Model const& model) {
    for (auto const& some : read(model.file()).objects)
        if (some.object.name == model.object) return &some.object;
    return nullptr;
}

class EveryFile : public testing::TestWithParam<std::string> {};
class EveryModel : public testing::TestWithParam<Model> {};
class EveryShatteredModel : public testing::TestWithParam<Model> {};

/// The shattered ones but for the ball, which is made of slim bars.
std::vector<Model> shattered_models() {
    std::vector<Model> shattered;
    for (Model const& model : models) {
        if (is_shattered(model.kind) && model.object != std::string("frameoctoball")) shattered.push_back(model);
    }
    return shattered;
}

std::string test_name(std::string name) {
    for (char& c : name)
        if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
    return name;
}

INSTANTIATE_TEST_SUITE_P(Data, EveryFile, testing::ValuesIn(files()),
                         [](auto const& some) { return test_name(some.param); });
INSTANTIATE_TEST_SUITE_P(Data, EveryModel, testing::ValuesIn(models),
                         [](auto const& some) { return test_name(some.param.object); });
INSTANTIATE_TEST_SUITE_P(Data, EveryShatteredModel, testing::ValuesIn(shattered_models()),
                         [](auto const& some) { return test_name(some.param.object); });

TEST(DataFolder, HoldsTheMeshesOfTheTableAndNoOthers) {
    std::set<std::string> found;
    for (auto const& entry : std::filesystem::directory_iterator(data_folder))
        if (entry.path().extension() == ".asc") found.insert(entry.path().stem().string());
    EXPECT_EQ(found, files());
}

TEST(DataFolder, HoldsLessThanTwelveMegabytesOfMeshes) {
    std::uintmax_t size = 0;
    for (auto const& entry : std::filesystem::directory_iterator(data_folder))
        if (entry.path().extension() == ".asc") size += entry.file_size();
    EXPECT_GT(size, 0U);
    EXPECT_LT(size, 12U * 1000 * 1000);
}

TEST_P(EveryFile, HoldsItsObjectsInTheOrderOfTheTable) {
    std::vector<std::string> expected, found;
    for (Model const& model : models)
        if (model.file() == GetParam()) expected.emplace_back(model.object);
    for (auto const& some : read(GetParam()).objects) found.push_back(some.object.name);
    EXPECT_EQ(found, expected);
}

TEST_P(EveryFile, HasNoFault) {
    for (asc::Fault const& fault : asc::faults_of(read(GetParam()), false))
        ADD_FAILURE() << GetParam() << ".asc:" << fault.line << ": " << fault.text;
}

// The loader takes a short line between objects for the end of the file when nothing but a name may follow.
TEST_P(EveryFile, EndsItsLinesWithCarriageReturnAndLineFeedAndHasNoBlankLineAtItsEnd) {
    std::string const text = text_of(GetParam());
    ASSERT_GT(text.size(), 4U);
    EXPECT_TRUE(text.starts_with("Named object: \""));
    EXPECT_TRUE(text.ends_with("\r\n"));
    EXPECT_FALSE(text.ends_with("\r\n\r\n"));
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '\n') {
            ASSERT_EQ(text[at - 1], '\r') << "at byte " << at;
        }
        if (text[at] == '\r') {
            ASSERT_EQ(text[at + 1], '\n') << "at byte " << at;
        }
        ASSERT_NE(text[at], '\0') << "at byte " << at;
    }
}

TEST_P(EveryFile, HasOneBlankLineBeforeEachNameButTheFirstAndNoOther) {
    std::string const text = text_of(GetParam());
    std::vector<std::string> lines;
    for (std::size_t from = 0; from < text.size();) {
        std::size_t const end = text.find("\r\n", from);
        lines.push_back(text.substr(from, end - from));
        from = end + 2;
    }
    for (std::size_t i = 0; i < lines.size(); ++i) {
        bool const before_name = i + 1 < lines.size() && lines[i + 1].starts_with("Named object: ");
        EXPECT_EQ(lines[i].empty(), before_name) << "line " << i + 1;
    }
}

TEST_P(EveryModel, FillsItsBox) {
    Model const& model = GetParam();
    asc::Object const* const object = find(model);
    ASSERT_TRUE(object) << model.file() << " holds no " << model.object;
    auto const [low, high] = asc::box_of(*object);
    double const deep = is_flat(model.kind) ? 1e-6 : model.tolerance;
    EXPECT_NEAR(low.x, model.centre.x - model.half.x, model.tolerance);
    EXPECT_NEAR(high.x, model.centre.x + model.half.x, model.tolerance);
    EXPECT_NEAR(low.y, model.centre.y - model.half.y, model.tolerance);
    EXPECT_NEAR(high.y, model.centre.y + model.half.y, model.tolerance);
    EXPECT_NEAR(low.z, model.centre.z - model.half.z, deep);
    EXPECT_NEAR(high.z, model.centre.z + model.half.z, deep);
}

TEST_P(EveryModel, HasAsManyFacesAsItsSceneBears) {
    Model const& model = GetParam();
    asc::Object const* const object = find(model);
    ASSERT_TRUE(object);
    int const faces = static_cast<int>(object->faces.size());
    EXPECT_GE(faces, model.fewest);
    EXPECT_LE(faces, model.most);
    EXPECT_LE(faces, is_shattered(model.kind) ? 10000 : 100000);
}

// Written out once more here, without the tool's own notion of creases and of drawing.
using Line = std::pair<int, int>;

Line line(int from, int to) { return {std::min(from, to), std::max(from, to)}; }

asc::Vec3 unit_normal(asc::Object const& object, asc::Face const& face) {
    auto const at = [&](int i) {
        return object.vertices[static_cast<std::size_t>(face.v[static_cast<std::size_t>(i)])];
    };
    asc::Vec3 const a = at(0), u = at(1) - a, w = at(2) - a;
    asc::Vec3 const n{u.y * w.z - u.z * w.y, u.z * w.x - u.x * w.z, u.x * w.y - u.y * w.x};
    return n * (1.0 / std::sqrt(n.x * n.x + n.y * n.y + n.z * n.z));
}

TEST_P(EveryModel, DrawsExactlyItsCreases) {
    asc::Object const* const object = find(GetParam());
    ASSERT_TRUE(object);
    std::set<Line> drawn;
    std::map<Line, std::vector<asc::Vec3>> normals;
    for (asc::Face const& face : object->faces) {
        auto const [a, b, c] = face.v;
        if (face.edge[0] == 1) drawn.insert(line(a, b));
        if (face.edge[1] == 1) drawn.insert(line(b, c));
        if (face.edge[1] == 1) drawn.insert(line(c, a)); // the list asks for BC here, not for CA
        for (Line const& side : {line(a, b), line(b, c), line(c, a)})
            normals[side].push_back(unit_normal(*object, face));
    }
    double const coplanar = std::cos(3.14159265358979 / 180.0); // within one degree
    std::set<Line> creases;
    for (auto const& [side, n] : normals)
        if (n.size() != 2 || n[0].x * n[1].x + n[0].y * n[1].y + n[0].z * n[1].z < coplanar) creases.insert(side);
    EXPECT_EQ(drawn, creases);
}

TEST_P(EveryModel, IsClosedAndLooksOutwardOrLiesFlatAndLooksToTheViewer) {
    Model const& model = GetParam();
    asc::Object const* const object = find(model);
    ASSERT_TRUE(object);
    std::map<Line, int> balance, count;
    double volume = 0.0;
    for (asc::Face const& face : object->faces) {
        for (std::size_t i = 0; i < 3; ++i) {
            int const from = face.v[i], to = face.v[(i + 1) % 3];
            balance[line(from, to)] += from < to ? 1 : -1;
            ++count[line(from, to)];
        }
        if (is_flat(model.kind)) {
            EXPECT_NEAR(unit_normal(*object, face).z, 1.0, 1e-9);
        }
        auto const at = [&](std::size_t i) { return object->vertices[static_cast<std::size_t>(face.v[i])]; };
        volume += asc::dot(at(0), asc::cross(at(1), at(2)));
    }
    for (auto const& [side, faces] : count) {
        ASSERT_LE(faces, 2) << side.first << "-" << side.second;
        if (faces == 2) {
            ASSERT_EQ(balance[side], 0) << side.first << "-" << side.second;
        }
        if (!is_flat(model.kind)) {
            ASSERT_EQ(faces, 2) << side.first << "-" << side.second;
        }
    }
    if (!is_flat(model.kind)) {
        EXPECT_GT(volume, 0.0);
    }
}

// Splinters as thin as needles would show when a mesh is taken apart.
TEST_P(EveryShatteredModel, FallsIntoPiecesWithDecentAngles) {
    Model const& model = GetParam();
    asc::Object const* const object = find(model);
    ASSERT_TRUE(object);
    std::size_t thin = 0;
    for (asc::Face const& face : object->faces) {
        double const angle = asc::smallest_angle(*object, face);
        EXPECT_GT(angle, 5.0);
        thin += angle < 15.0 ? 1 : 0;
    }
    EXPECT_LT(static_cast<double>(thin), 0.1 * static_cast<double>(object->faces.size()));
}

TEST(Solids, ReachExactlyToTheirRadius) {
    struct {
        char const* name;
        double radius; ///< of the vertex farthest from the origin
        // clang-format off
    } const cases[] = {
        {"framecube",          10.5},
        {"frametetrahedron",   10.5},
        {"frameoctoball",      6.5},
        {"spikeydodecahedron", 10.0},
        {"hollowsoccerball",   4},
        {"frameicosahedron",   2},
    };
    // clang-format on
    for (auto const& [name, radius] : cases) {
        SCOPED_TRACE(name);
        ASSERT_EQ(read(name).objects.size(), 1U);
        double farthest = 0.0;
        for (asc::Vec3 const& p : read(name).objects[0].object.vertices) farthest = std::max(farthest, asc::length(p));
        EXPECT_NEAR(farthest, radius, 2e-6);
    }
}

// The shells turn about the origin and the shattered shapes about theirs: mirror images of their points must be there
// too.
TEST(Solids, OfBarsAreSymmetrical) {
    for (char const* const name : {"frameoctoball", "hollowsoccerball", "frameicosahedron", "torus2", "donut2"}) {
        SCOPED_TRACE(name);
        asc::Object const& object = read(name).objects.at(0).object;
        for (asc::Vec3 const& p : object.vertices) {
            asc::Vec3 const opposite = p * -1.0;
            EXPECT_TRUE(std::any_of(object.vertices.begin(), object.vertices.end(),
                                    [&](asc::Vec3 const& q) { return asc::length(q - opposite) < 5e-6; }))
                << p.x << ", " << p.y << ", " << p.z;
        }
    }
}

TEST(Glass, FillsThePaneToItsCorners) {
    asc::ReadFile const& file = read("glass");
    ASSERT_EQ(file.objects.size(), 1U);
    asc::Object const& glass = file.objects[0].object;
    double area = 0.0;
    for (asc::Face const& face : glass.faces) area += 0.5 * asc::face_normal(glass, face).z;
    EXPECT_NEAR(area, 7.2 * 6.4, 1e-4);
}

TEST(Glass, HasItsSmallestShardsAtThePointOfImpact) {
    asc::Object const& glass = read("glass").objects.at(0).object;
    for (asc::Face const& face : glass.faces) {
        asc::Vec3 middle;
        for (int v : face.v) middle = middle + glass.vertices[static_cast<std::size_t>(v)] * (1.0 / 3.0);
        double const away = std::hypot(middle.x + 0.12, middle.y);
        double const size = std::sqrt(0.5 * asc::face_normal(glass, face).z);
        EXPECT_LT(size, 0.08 + 0.4 * away) << "at " << middle.x << ", " << middle.y;
        EXPECT_GT(size, 0.1 * away) << "at " << middle.x << ", " << middle.y;
    }
}

} // namespace
