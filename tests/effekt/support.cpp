// SPDX-License-Identifier: MIT
#include "tests/effekt/support.h"

#include <fstream>

namespace effect_test {

char const* const mesh_faces =
    "Begin(TRIANGLES) Vertex(0,0,0) Vertex(1,0,0) Vertex(1,1,0) Vertex(0,0,0) Vertex(1,1,0) Vertex(0,1,0) End";

// The second face shows BC and, with it, CA.
char const* const mesh_lines =
    "LineWidth(1) Begin(LINES) Vertex(0,0,0) Vertex(1,0,0) Vertex(1,1,0) Vertex(0,1,0) Vertex(0,1,0) Vertex(0,0,0) End";

kore::StateData state_at(float time, int beat, bool new_beat) {
    kore::StateData state;
    state.time = time;
    state.beat_count = beat;
    state.new_beat = new_beat;
    return state;
}

WorkingFolder::WorkingFolder(std::filesystem::path const& path) : before(std::filesystem::current_path()) {
    std::filesystem::current_path(path);
}

WorkingFolder::~WorkingFolder() { std::filesystem::current_path(before); }

EffectTest::EffectTest() {
    gl::reset();
    std::filesystem::create_directory(Root() / "data");
}

void EffectTest::WriteMesh(std::string const& file, std::string const& object) const {
    std::ofstream out(Root() / "data" / file, std::ios::binary);
    out << "Named object: \"" << object << "\"\r\n"
        << "Tri-mesh, Vertices: 4     Faces: 2\r\n"
        << "Vertex list:\r\n"
        << "Vertex 0:  X:0     Y:0     Z:0\r\n"
        << "Vertex 1:  X:1     Y:0     Z:0\r\n"
        << "Vertex 2:  X:1     Y:1     Z:0\r\n"
        << "Vertex 3:  X:0     Y:1     Z:0\r\n"
        << "Face list:\r\n"
        << "Face 0:    A:0 B:1 C:2 AB:1 BC:0 CA:0\r\n"
        << "Face 1:    A:0 B:2 C:3 AB:0 BC:1 CA:0\r\n";
    ASSERT_TRUE(out.good());
}

kore::AscModel_ptr EffectTest::Library() const {
    return std::make_shared<kore::AscModel>((Root() / "data").string() + '/');
}

void EffectTest::NameLists(kore::AscModel const& models, std::string const& object) {
    unsigned int list = 0;
    ASSERT_TRUE(models.ModelByName(object, list));
    gl::name_list(list, object);
    ASSERT_TRUE(models.WfByName(object, list));
    gl::name_list(list, object + "-lines");
}

} // namespace effect_test
