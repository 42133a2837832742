// SPDX-License-Identifier: MIT
#pragma once

#include "kore/asclimits.h"
#include "kore/object.h"

#include <GL/gl.h>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace kore {

/// One object of the ordinary store.
struct SingleAscModel {
    SingleAscModel(std::string const& name, unsigned int model, unsigned int wireframe);

    std::string name;
    unsigned int model;     ///< display list of the solid triangles
    unsigned int wireframe; ///< display list of the visible edges
};

/// One object of the per-triangle store.
struct SingleAscModelFull {
    static constexpr unsigned int max_faces = max_object_faces_full;

    /// @param face_models      count display lists
    /// @param face_wireframes  count display lists
    /// @param count            at most max_faces
    SingleAscModelFull(std::string const& name, unsigned int const* face_models, unsigned int const* face_wireframes,
                       unsigned int const& count);

    std::string name;
    unsigned int count;                      ///< number of triangles
    unsigned int face_models[max_faces];     ///< display list of each triangle, in face order
    unsigned int face_wireframes[max_faces]; ///< display list of each triangle's outline
};

/// The model library: reads mesh files and keeps their objects as display lists, found by name.
/// Needs a current OpenGL context while loading. Objects are never removed and lists never deleted.
/// A file loaded twice stores its objects twice; of several with one name the first is found.
class AscModel final : public Object {
public:
    /// @param directory  put in front of every file name as it is ("data/")
    explicit AscModel(std::string const& directory);

    char const* Name() override { return "AscModel"; }

    std::string const& GetDirectory() const { return my_directory; }

    /// Loads every object of a file into the ordinary store.
    /// @return index of the last object stored, or -1 after an error line on standard output; objects read before the
    ///         error stay usable
    int LoadModel(std::string const& file);

    /// Loads every object of a file into the per-triangle store, at most max_object_faces_full faces each.
    /// @return 1, or 0 after an error line on standard output
    int LoadModelFull(std::string const& file);

    /// LoadModel and LoadModelFull with a whole path.
    /// @return what the builder returned for the last object stored, or -1
    int LoadModelFromFile(std::string const& path, bool full);

    /// Compiles a solid and an edge list from one mesh and stores them under a name.
    /// @param tris_count   triangles in the solid list
    /// @param lines_count  faces whose edges go into the wireframe list
    /// @param verts        vertices x 3 floats
    /// @param faces        count x 3 ints, 0-based
    /// @param edges        count x 3 ints: visibility of AB, BC, CA
    /// @return index in the ordinary store
    int GenList(std::string const& name, int vertices, int tris_count, int lines_count, GLfloat const (*verts)[3],
                int const (*faces)[3], int const (*edges)[3]);

    /// Compiles a list for every triangle and one for its outline; asserts that both counts are the same.
    /// @return 1
    int GenListFull(std::string const& name, int vertices, int tris_count, int lines_count, GLfloat const (*verts)[3],
                    int const (*faces)[3], int const (*edges)[3]);

    /// Finds the solid list, or the wireframe list, of an object of the ordinary store.
    /// @return false, with list left as it was, if there is none of that name
    bool ModelByName(std::string const& name, unsigned int& list) const;
    bool WfByName(std::string const& name, unsigned int& list) const;

    /// @return the object of the per-triangle store, or an empty pointer
    std::shared_ptr<SingleAscModelFull> ModelByNameFull(std::string const& name) const;

    /// @param list  of an object's triangles
    /// @return the name of the object of the ordinary store; "" if there is none with this list
    std::string NameOf(unsigned int list) const;

    /// @param index  position in the ordinary store, not checked
    unsigned int& ModelByIndex(int const& index) { return store[static_cast<std::size_t>(index)]->model; }

    /// Objects in the ordinary store.
    std::size_t size() const { return store.size(); }

private:
    SingleAscModel const* Find(std::string const& name) const;

    std::vector<std::shared_ptr<SingleAscModel>> store;
    std::vector<std::shared_ptr<SingleAscModelFull>> full_store;
    std::string my_directory;
};

using AscModel_ptr = std::shared_ptr<AscModel>;

} // namespace kore
