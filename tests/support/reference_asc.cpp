// SPDX-License-Identifier: MIT
#include "tests/support/reference_asc.h"

#include <cstdio>
#include <sstream>

namespace reference {

namespace {

/// Reads one object after the other.
class Reader {
public:
    explicit Reader(std::istream& stream_) : stream(stream_) {}

    File Read() {
        while (!stream.eof() && ReadObject()) continue;
        return file;
    }

private:
    bool Line() { return static_cast<bool>(std::getline(stream, line)); }
    bool Has(char const* keyword) const { return line.find(keyword) != std::string::npos; }
    bool Short() const { return line.size() < 2; }

    bool Fail(std::string const& message) {
        file.fault = message;
        return false;
    }

    /// @return false if there is nothing more to read
    bool ReadObject() {
        mesh.vertices.clear();
        mesh.faces.clear();
        mesh.edges.clear();
        vertices = faces = 0;
        return ReadHeader() && ReadVertices() && ReadFaces();
    }

    bool ReadHeader() {
        while (Line()) {
            if (Short()) return false;
            if (Has("Named object:")) mesh.name = line.size() > 17 ? line.substr(15, line.size() - 17) : "";
            if (!Has("Tri-mesh, Vertices")) continue;
            sscanf(line.c_str(), "Tri-mesh, Vertices: %d Faces: %d", &vertices, &faces);
            if (vertices < 1 || faces < 1) return Fail("Bad file format");
            return true;
        }
        return true;
    }

    bool ReadVertices() {
        while (Line()) {
            if (Short()) return false;
            if (Has("Vertex list:")) continue;
            if (Has("Vertex")) {
                int index = 0;
                sscanf(line.c_str(), "Vertex %d: X:%f Y:%f Z:%f", &index, &vertex[0], &vertex[1], &vertex[2]);
                mesh.vertices.push_back(vertex);
            }
            if (Has("Face list:")) break;
        }
        if (mesh.vertices.empty() || mesh.vertices.size() != static_cast<std::size_t>(vertices)) {
            return Fail("Bad file format, vertex count mismatch.");
        }
        return true;
    }

    bool ReadFaces() {
        while (Line() && !Short()) {
            if (!Has("Face")) continue;
            int index = 0;
            sscanf(line.c_str(), "Face %d: A:%d B:%d C:%d AB:%d BC:%d CA:%d", &index, &face[0], &face[1], &face[2],
                   &edge[0], &edge[1], &edge[2]);
            mesh.faces.push_back(face);
            mesh.edges.push_back(edge);
        }
        if (mesh.faces.empty() || mesh.faces.size() != static_cast<std::size_t>(faces)) {
            return Fail("Bad file format, face count mismatch. Reported: " + std::to_string(faces) +
                        " counted: " + std::to_string(mesh.faces.size()));
        }
        file.meshes.push_back(mesh);
        return true;
    }

    std::istream& stream;
    std::string line;
    File file;
    Mesh mesh;
    int vertices = 0;
    int faces = 0;
    std::array<float, 3> vertex{0, 0, 0}; // a line that does not parse repeats the values of the line before
    std::array<int, 3> face{0, 0, 0};
    std::array<int, 3> edge{0, 0, 0};
};

} // namespace

File read_asc(std::istream& stream) { return Reader(stream).Read(); }

File read_asc(std::string const& text) {
    std::istringstream stream(text);
    return read_asc(stream);
}

} // namespace reference
