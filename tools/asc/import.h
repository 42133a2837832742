#pragma once

#include "tools/asc/mesh.h"

#include <string>
#include <vector>

namespace asc {

/// Reads the triangle meshes of a model file that Assimp knows (OFF, OBJ, STL, glTF and more), polygons cut into
/// triangles, each mesh placed as the file's nodes place it. With a `name` all meshes join in one object of that name;
/// without, a file of one mesh gives an object named after the file, and a file of several gives each mesh under its
/// own name. Returns no objects and sets `error` (one line) if the file cannot be read or holds no triangles.
std::vector<Object> import_model(std::string const& path, std::string const& name, std::string& error);

} // namespace asc
