#include "tools/asc/import.h"

#include <assimp/Importer.hpp>
#include <assimp/postprocess.h>
#include <assimp/scene.h>

#include <filesystem>

namespace asc {

namespace {

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

} // namespace

std::vector<Object> import_model(std::string const& path, std::string const& name, std::string& error) {
    std::error_code ignored;
    if (!std::filesystem::is_regular_file(path, ignored)) {
        error = "no such file";
        return {};
    }
    Assimp::Importer importer;
    aiScene const* const scene = importer.ReadFile(path, aiProcess_Triangulate);
    if (!scene || !scene->mRootNode) {
        error = importer.GetErrorString();
        for (char& c : error) {
            if (c == '\n' || c == '\r') c = ' ';
        }
        if (error.empty()) error = "not a model file";
        return {};
    }
    std::vector<Object> objects;
    collect(*scene, *scene->mRootNode, aiMatrix4x4(), objects);
    if (objects.empty()) {
        error = "it holds no triangles";
        return {};
    }
    if (!name.empty()) return {join(objects, name)};
    if (objects.size() == 1) objects.front().name = std::filesystem::path(path).stem().string();
    return objects;
}

} // namespace asc
