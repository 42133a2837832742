// SPDX-License-Identifier: MIT
#pragma once

#include "tools/asc/mesh.h"

#include <string>
#include <vector>

namespace asc {

/// Reads the triangle meshes of a model file that Assimp knows (OFF, OBJ, STL, glTF and more), polygons cut into
/// triangles, each mesh placed as the file's nodes place it. With a `name` all meshes join in one object of that name;
/// without, a file of one mesh gives an object named after the file, and a file of several gives each mesh under its
/// own name. Returns no objects and sets `error` (one line) if the file cannot be read, holds no triangles or too many,
/// or has a coordinate beyond most_coordinate. Assimp reads in a process of its own: of files that are wrong in the
/// right way it dies, waits or takes all memory. It may take 5 s and a second for each MiB, and 2 GiB of addresses.
std::vector<Object> import_model(std::string const& path, std::string const& name, std::string& error);

} // namespace asc
