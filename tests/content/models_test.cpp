// SPDX-License-Identifier: MIT
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

/// Along one axis, in units of the mesh.
struct Range {
    double low, high;
};

/// What one object should be. Boxes and counts change with the sources in content/models/: look at the model before
/// you change them here.
struct Model {
    char const* in_file;
    char const* object;
    Kind kind;
    Range x, y, z; ///< its box
    std::size_t faces;

    std::string file() const { return *in_file ? in_file : object; }
};
[[maybe_unused]] void PrintTo(Model const& model, std::ostream* out) { *out << model.object; }

// clang-format off
std::vector<Model> const models = {
    // file       object                  kind             x                 y                 z               faces
    {"weknow",    "We",                   solid,           {-5.999,  2.999}, {-4.8,      4.8}, {-0.6,     0.6},   92},
    {"weknow",    "Know",                 solid,           {-10.325, 7.325}, {-4.8,      4.8}, {-0.6,     0.6},  240},
    {"weknow",    "What",                 solid,           {-10.229, 7.229}, {-4.8,      4.8}, {-0.6,     0.6},  164},
    {"weknow",    "Are",                  solid,           {-7.255,  4.255}, {-4.8,      4.8}, {-0.6,     0.6},  236},
    {"weknow",    "Doing",                solid,           {-10.277, 7.277}, {-4.8,      4.8}, {-0.6,     0.6},  372},
    {"weknow",    "QUILLONx",             solid,           {-15.5,    14.5}, {-4.6,      4.6}, {-0.8,     0.8},  472},
    {same,        "glass",                flat_shattered,  {-3.6,      3.6}, {-3.2,      3.2}, {0,          0},  304},
    {same,        "gungirl_silhouette",   flat_shattered,  {-1.857,  1.884}, {-4.744,  4.767}, {0,          0}, 1551},
    {same,        "donut2",               solid,           {-0.92,    0.92}, {-0.92,    0.92}, {-0.04,   0.04}, 1280},
    {same,        "framecube",            solid_shattered, {-6.062,  6.062}, {-6.062,  6.062}, {-6.062, 6.062},  816},
    {same,        "frametetrahedron",     solid_shattered, {-6.062,  6.062}, {-6.062,  6.062}, {-6.062, 6.062},  624},
    {same,        "frameoctoball",        solid_shattered, {-6.5,      6.5}, {-6.5,      6.5}, {-6.5,     6.5},  480},
    {same,        "spikeydodecahedron",   solid_shattered, {-8.507,  8.507}, {-8.507,  8.507}, {-8.507, 8.507},  456},
    {same,        "infinity",             solid_shattered, {-4.906,  4.906}, {-4.906,  4.906}, {-10,       10},  576},
    {same,        "maltanristi",          solid_shattered, {-6.059,  6.059}, {-6.059,  6.059}, {-8.019, 8.019},  416},
    {same,        "gun_silhouette",       flat,            {-4.005,  3.999}, {-2.5,      2.5}, {0,          0},  435},
    {same,        "credits",              flat,            {-4.101,    2.3}, {-11.143, 3.985}, {0,          0}, 1302},
    {same,        "butt_silhouette",      flat,            {-0.296,  2.058}, {-4.504,  4.492}, {0,          0},  609},
    {same,        "side2_silhouette",     flat,            {-0.24,   1.862}, {-4.496,  4.443}, {0,          0},  567},
    {same,        "sideview_silhouette",  flat,            {-2.189,  0.359}, {-4.512,  4.512}, {0,          0},  736},
    {same,        "torus2",               solid,           {-3.62,    3.62}, {-3.62,    3.62}, {-0.42,   0.42},  448},
    {same,        "tentacles_silhouette", flat,            {-4.95,   4.186}, {-4.618,   4.95}, {-0.02,  -0.02}, 2033},
    {same,        "QUILLONx-title",       flat,            {-36,        36}, {-7.5,      7.5}, {0,          0},  304},
    {same,        "HARD-title",           flat,            {-0.6,      0.6}, {-0.22,     0.3}, {0,          0},  175},
    {same,        "SILENCE-title",        flat,            {-2.8,      2.8}, {-0.88,    0.28}, {0,          0},  248},
    {same,        "hollowsoccerball",     solid,           {-3.918,  3.918}, {-3.918,  3.918}, {-3.918, 3.918}, 1080},
    {same,        "frameicosahedron",     solid,           {-1.701,  1.701}, {-1.701,  1.701}, {-1.701, 1.701},  360},
    {"greetings", "Arbalest",             solid,           {-1.776,  1.776}, {-0.36,    0.68}, {-0.1,     0.1},  620},
    {"greetings", "Pixelherds",           solid,           {-2.121,  2.121}, {-0.36,    0.68}, {-0.1,     0.1},  664},
    {"greetings", "Lanternfly",           solid,           {-2.163,  2.163}, {-0.36,    0.68}, {-0.1,     0.1},  444},
    {"greetings", "Mirevolt",             solid,           {-1.692,  1.692}, {-0.36,    0.68}, {-0.1,     0.1},  436},
    {"greetings", "Quartzine",            solid,           {-1.903,  1.903}, {-0.36,    0.68}, {-0.1,     0.1},  576},
    {"greetings", "Tundrabeat",           solid,           {-2.292,  2.292}, {-0.36,    0.68}, {-0.1,     0.1},  672},
    {"greetings", "Obelisk_K",            solid,           {-1.76,    1.76}, {-0.36,    0.68}, {-0.1,     0.1},  568},
    {"greetings", "Heavy_Cart",           solid,           {-2.126,  2.126}, {-0.36,    0.68}, {-0.1,     0.1},  532},
};
// clang-format on

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

/// The shattered ones except the ball, which is made of slim bars.
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

TEST(DataFolder, HoldsLessThanTwoMegabytesOfMeshes) {
    std::uintmax_t size = 0;
    for (auto const& entry : std::filesystem::directory_iterator(data_folder))
        if (entry.path().extension() == ".asc") size += entry.file_size();
    EXPECT_GT(size, 0U);
    EXPECT_LT(size, 2U * 1000 * 1000);
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

// Where only a name may follow, the loader takes a short line for the end of the file.
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
    constexpr double tolerance = 0.001;
    double const deep = is_flat(model.kind) ? 1e-6 : tolerance;
    EXPECT_NEAR(low.x, model.x.low, tolerance);
    EXPECT_NEAR(high.x, model.x.high, tolerance);
    EXPECT_NEAR(low.y, model.y.low, tolerance);
    EXPECT_NEAR(high.y, model.y.high, tolerance);
    EXPECT_NEAR(low.z, model.z.low, deep);
    EXPECT_NEAR(high.z, model.z.high, deep);
}

TEST_P(EveryModel, HasItsFacesAndNotTooManyToShatter) {
    Model const& model = GetParam();
    asc::Object const* const object = find(model);
    ASSERT_TRUE(object);
    EXPECT_EQ(object->faces.size(), model.faces);
    if (is_shattered(model.kind)) {
        EXPECT_LE(object->faces.size(), 10000U);
    }
}

// Written a second time, without the tool's own code for creases and drawing.
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
        if (face.edge[1] == 1) drawn.insert(line(c, a)); // the list uses the flag of BC here, not of CA
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

// Needle-thin splinters would show when a mesh falls apart.
TEST_P(EveryShatteredModel, FallsIntoPiecesWithDecentAngles) {
    Model const& model = GetParam();
    asc::Object const* const object = find(model);
    ASSERT_TRUE(object);
    bool const narrow_tips = model.object == std::string("gungirl_silhouette"); // her outline's
    std::size_t thin = 0;
    for (asc::Face const& face : object->faces) {
        double const angle = asc::smallest_angle(*object, face);
        EXPECT_GT(angle, narrow_tips ? 12.0 : 15.0);
        thin += angle < 15.0 ? 1 : 0;
    }
    EXPECT_LT(static_cast<double>(thin), 0.08 * static_cast<double>(object->faces.size()));
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

// The shells turn about the origin, so every point must have its mirror image.
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
        EXPECT_LT(size, 0.05 + 0.4 * away) << "at " << middle.x << ", " << middle.y;
        EXPECT_GT(size, 0.15 * away) << "at " << middle.x << ", " << middle.y;
    }
}

} // namespace
