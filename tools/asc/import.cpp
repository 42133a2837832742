// SPDX-License-Identifier: MIT
#include "tools/asc/import.h"

#include "tools/asc/apart.h"
#include "tools/asc/packing.h"

#include <assimp/DefaultIOSystem.h>
#include <assimp/Importer.hpp>
#include <assimp/postprocess.h>
#include <assimp/scene.h>

#include <algorithm>
#include <filesystem>
#include <numeric>

namespace fs = std::filesystem;

namespace asc {

namespace {

constexpr std::uintmax_t largest_file = std::uintmax_t{256} << 20; // bytes
constexpr std::size_t most_triangles = 200000;                     // twice what a mesh file may hold
constexpr std::chrono::seconds shortest_time{5};                   // for a file without bytes
constexpr std::uintmax_t bytes_a_second = 1 << 20;
constexpr std::size_t most_memory = std::size_t{2} << 30;
constexpr std::size_t most_result = std::size_t{256} << 20;

bool is_readable(fs::path const& path) {
    std::error_code error;
    return fs::is_regular_file(path, error) && fs::file_size(path, error) <= largest_file;
}

/// Opens regular files alone: a material or a texture may be a FIFO, which would wait.
class RegularFiles final : public Assimp::DefaultIOSystem {
public:
    bool Exists(char const* file) const override { return is_readable(file); }
    Assimp::IOStream* Open(char const* file, char const* mode) override {
        return is_readable(file) ? DefaultIOSystem::Open(file, mode) : nullptr;
    }
};

/// Appends the triangles of one mesh, moved by `place`.
void append(Object& object, aiMesh const& mesh, aiMatrix4x4 const& place) {
    int const first = static_cast<int>(object.vertices.size());
    for (unsigned i = 0; i < mesh.mNumVertices; ++i) {
        aiVector3D const p = place * mesh.mVertices[i];
        object.vertices.push_back({static_cast<double>(p.x), static_cast<double>(p.y), static_cast<double>(p.z)});
    }
    for (unsigned i = 0; i < mesh.mNumFaces; ++i) {
        aiFace const& face = mesh.mFaces[i];
        if (face.mNumIndices != 3) continue; // points and lines
        Face out;
        for (unsigned k = 0; k < 3; ++k) out.v[k] = first + static_cast<int>(face.mIndices[k]);
        object.faces.push_back(out);
    }
}

/// The meshes of a node and of all below it, one object each.
void collect(aiScene const& scene, aiNode const& node, aiMatrix4x4 const& above, std::vector<Object>& out) {
    aiMatrix4x4 const place = above * node.mTransformation;
    for (unsigned i = 0; i < node.mNumMeshes; ++i) {
        aiMesh const& mesh = *scene.mMeshes[node.mMeshes[i]];
        Object object;
        object.name = mesh.mName.length > 0 ? mesh.mName.C_Str() : node.mName.C_Str();
        append(object, mesh, place);
        if (!object.faces.empty()) out.push_back(std::move(object));
    }
    for (unsigned i = 0; i < node.mNumChildren; ++i) collect(scene, *node.mChildren[i], place, out);
}

Object join(std::vector<Object> const& parts, std::string const& name) {
    Object all;
    all.name = name;
    for (Object const& part : parts) {
        int const first = static_cast<int>(all.vertices.size());
        all.vertices.insert(all.vertices.end(), part.vertices.begin(), part.vertices.end());
        for (Face face : part.faces) {
            for (int& v : face.v) v += first;
            all.faces.push_back(face);
        }
    }
    return all;
}

std::string in_one_line(std::string text) {
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
    return text;
}

/// The meshes of a file, by the library; packed behind an error line, one of the two empty.
std::string read_packed(std::string const& path) {
    Assimp::Importer importer;
    importer.SetIOHandler(new RegularFiles); // the importer's from now on
    aiScene const* const scene = importer.ReadFile(path, aiProcess_Triangulate);
    if (!scene || !scene->mRootNode) {
        std::string const error = in_one_line(importer.GetErrorString());
        return (error.empty() ? "not a model file" : error) + '\n';
    }
    std::vector<Object> objects;
    collect(*scene, *scene->mRootNode, aiMatrix4x4(), objects);
    if (objects.empty()) return "it holds no triangles\n";
    auto const add_faces = [](std::size_t sum, Object const& object) { return sum + object.faces.size(); };
    if (std::accumulate(objects.begin(), objects.end(), std::size_t{0}, add_faces) > most_triangles) {
        return "it holds more than " + std::to_string(most_triangles) + " triangles\n";
    }
    return '\n' + pack(objects);
}

bool within_range(Object const& object) {
    auto const good = [](double v) { return std::abs(v) <= most_coordinate; }; // not for NaN
    return std::ranges::all_of(object.vertices, [&](Vec3 const& p) { return good(p.x) && good(p.y) && good(p.z); });
}

/// @return no objects and an error line if that fails
std::vector<Object> read_apart(std::string const& path, std::string& error) {
    std::error_code ignored;
    std::chrono::seconds const time =
        shortest_time + std::chrono::seconds(fs::file_size(path, ignored) / bytes_a_second);
    Result const result = run_apart([&] { return read_packed(path); }, {time, most_memory, most_result});
    if (!result.failure.empty()) {
        error = "cannot read it: " + result.failure;
        return {};
    }
    std::size_t const line = std::min(result.bytes.find('\n'), result.bytes.size());
    error = result.bytes.substr(0, line);
    if (!error.empty()) return {};
    auto objects = unpack(std::string_view(result.bytes).substr(std::min(line + 1, result.bytes.size())));
    if (!objects) {
        error = "cannot read it: its faces have no vertices";
        return {};
    }
    if (!std::ranges::all_of(*objects, within_range)) {
        error = "a coordinate is not a number from -1000000 to 1000000";
        return {};
    }
    return std::move(*objects);
}

} // namespace

std::vector<Object> import_model(std::string const& path, std::string const& name, std::string& error) {
    std::error_code ignored;
    if (!fs::is_regular_file(path, ignored)) {
        error = "no such file";
        return {};
    }
    if (!is_readable(path)) {
        error = "it has more than " + std::to_string(largest_file >> 20) + " MiB";
        return {};
    }
    std::vector<Object> objects = read_apart(path, error);
    if (objects.empty()) return {};
    if (!name.empty()) return {join(objects, name)};
    if (objects.size() == 1) objects.front().name = fs::path(path).stem().string();
    return objects;
}

} // namespace asc
