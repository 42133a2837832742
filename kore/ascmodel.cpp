// SPDX-License-Identifier: MIT
#include "kore/ascmodel.h"

#include "kore/ascfile.h"
#include "kore/edgerule.h"
#include "kore/reportedplaces.h"

#include <algorithm>

namespace kore {

namespace {

void segment(GLfloat const* from, GLfloat const* to) {
    glVertex3fv(from);
    glVertex3fv(to);
}

void triangle(GLfloat const (*verts)[3], int const* face) {
    glVertex3fv(verts[face[0]]);
    glVertex3fv(verts[face[1]]);
    glVertex3fv(verts[face[2]]);
}

void visible_edges(GLfloat const (*verts)[3], int const* face, int const* edges) {
    DrawnEdges const drawn = drawn_edges(edges);
    if (drawn.ab) segment(verts[face[0]], verts[face[1]]);
    if (drawn.bc) segment(verts[face[1]], verts[face[2]]);
    if (drawn.ca) segment(verts[face[2]], verts[face[0]]);
}

} // namespace

SingleAscModel::SingleAscModel(std::string const& name_, unsigned int model_, unsigned int wireframe_)
    : name(name_), model(model_), wireframe(wireframe_) {}

SingleAscModelFull::SingleAscModelFull(std::string const& name_, unsigned int const* face_models_,
                                       unsigned int const* face_wireframes_, unsigned int const& count_)
    : name(name_), count(count_) {
    std::copy_n(face_models_, count, face_models);
    std::copy_n(face_wireframes_, count, face_wireframes);
}

AscModel::AscModel(std::string const& directory) : my_directory(directory) {}

int AscModel::LoadModel(std::string const& file) { return LoadModelFromFile(my_directory + file, false); }

int AscModel::LoadModelFull(std::string const& file) {
    return LoadModelFromFile(my_directory + file, true) >= 0 ? 1 : 0;
}

int AscModel::LoadModelFromFile(std::string const& path, bool full) {
    AscFile file;
    if (!file.Open(path)) {
        KORE_ERROR("Could not open file " + path);
        return -1;
    }
    int last = -1;
    for (;;) {
        AscFile::Result const result = file.Next();
        if (result == AscFile::Result::End) return last;
        if (result == AscFile::Result::Fault) {
            KORE_ERROR(file.GetFault());
            return -1;
        }
        int const faces = file.GetFaceCount();
        if (full && faces > static_cast<int>(SingleAscModelFull::max_faces)) {
            KORE_ERROR("Bad file format in " + path + ": " + std::to_string(faces) +
                       " faces are too many to be stored one by one.");
            return -1;
        }
        auto const build = full ? &AscModel::GenListFull : &AscModel::GenList;
        last = (this->*build)(file.GetName(), file.GetVertexCount(), faces, faces, file.GetVertices(), file.GetFaces(),
                              file.GetEdges());
    }
}

int AscModel::GenList(std::string const& name, int /*vertices*/, int tris_count, int lines_count,
                      GLfloat const (*verts)[3], int const (*faces)[3], int const (*edges)[3]) {
    GLuint const solid = glGenLists(1);
    glNewList(solid, GL_COMPILE);
    glBegin(GL_TRIANGLES);
    for (int i = 0; i < tris_count; ++i) triangle(verts, faces[i]);
    glEnd();
    glEndList();

    GLuint const wireframe = glGenLists(1);
    glNewList(wireframe, GL_COMPILE);
    glLineWidth(1.0f);
    glBegin(GL_LINES);
    for (int i = 0; i < lines_count; ++i) visible_edges(verts, faces[i], edges[i]);
    glEnd();
    glEndList();

    store.push_back(std::make_shared<SingleAscModel>(name, solid, wireframe));
    return static_cast<int>(store.size()) - 1;
}

int AscModel::GenListFull(std::string const& name, int /*vertices*/, int tris_count, int lines_count,
                          GLfloat const (*verts)[3], int const (*faces)[3], int const (*)[3]) {
    KORE_ASSERT_AT(tris_count == lines_count, places::gen_list_full(__LINE__));
    auto const count = static_cast<unsigned int>(tris_count);
    std::vector<unsigned int> models(count);
    std::vector<unsigned int> outlines(count);

    GLuint const model_start = glGenLists(tris_count);
    KORE_ASSERT_AT(model_start, places::gen_list_full(__LINE__));
    for (unsigned int i = 0; i < count; ++i) {
        models[i] = model_start + i;
        glNewList(models[i], GL_COMPILE);
        glBegin(GL_TRIANGLES);
        triangle(verts, faces[i]);
        glEnd();
        glEndList();
    }

    GLuint const wireframe_start = glGenLists(tris_count);
    KORE_ASSERT_AT(wireframe_start, places::gen_list_full(__LINE__));
    for (unsigned int i = 0; i < count; ++i) {
        outlines[i] = wireframe_start + i;
        glNewList(outlines[i], GL_COMPILE);
        glBegin(GL_LINES);
        glLineWidth(1.0f); // Deliberate: inside the primitive, where OpenGL refuses it and draws the lines all the same
        segment(verts[faces[i][0]], verts[faces[i][1]]);
        segment(verts[faces[i][1]], verts[faces[i][2]]);
        segment(verts[faces[i][2]], verts[faces[i][0]]);
        glEnd();
        glEndList();
    }

    full_store.push_back(std::make_shared<SingleAscModelFull>(name, models.data(), outlines.data(), count));
    return 1;
}

SingleAscModel const* AscModel::Find(std::string const& name) const {
    auto const found = std::find_if(store.begin(), store.end(), [&](auto const& model) { return model->name == name; });
    return found == store.end() ? nullptr : found->get();
}

bool AscModel::ModelByName(std::string const& name, unsigned int& list) const {
    SingleAscModel const* const found = Find(name);
    if (found) list = found->model;
    return found != nullptr;
}

bool AscModel::WfByName(std::string const& name, unsigned int& list) const {
    SingleAscModel const* const found = Find(name);
    if (found) list = found->wireframe;
    return found != nullptr;
}

std::string AscModel::NameOf(unsigned int list) const {
    auto const found =
        std::find_if(store.begin(), store.end(), [&](auto const& model) { return model->model == list; });
    return found == store.end() ? "" : (*found)->name;
}

std::shared_ptr<SingleAscModelFull> AscModel::ModelByNameFull(std::string const& name) const {
    auto const found =
        std::find_if(full_store.begin(), full_store.end(), [&](auto const& model) { return model->name == name; });
    return found == full_store.end() ? nullptr : *found;
}

} // namespace kore
