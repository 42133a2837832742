// SPDX-License-Identifier: MIT
#pragma once

#include "kore/asclimits.h"
#include "kore/readfile.h"

#include <GL/gl.h>
#include <memory>
#include <string>
#include <string_view>

namespace kore {

/// Reads a mesh file of the show, one named object after the other.
///
/// The format is text with CRLF line ends (a 3D Studio ASCII export). An object is a name line, a header line with its
/// counts, a vertex list and a face list; a blank line stands between two objects:
///
///     Named object: "Box01"
///     Tri-mesh, Vertices: 8     Faces: 12
///     Vertex list:
///     Vertex 0:  X:-1.0     Y:1.0     Z:0.5
///     Face list:
///     Face 0:    A:0 B:1 C:2 AB:1 BC:1 CA:0
///
/// Lines are known by a keyword anywhere in them and read with the patterns of scanf from their start; what they hold
/// beyond is skipped. Two blank lines end the file early.
class AscFile {
public:
    static constexpr int max_vertices = max_object_vertices;
    static constexpr int max_faces = max_object_faces;

    enum class Result {
        Object, ///< an object has been read
        End,    ///< there are no more objects
        Fault,  ///< the file is not as it should be; GetFault() tells
    };

    AscFile();

    /// Reads the whole file into memory.
    /// @return false if it cannot be read: missing, not permitted, not a regular file, or larger than max_mesh_file
    bool Open(std::string const& path);

    /// Reads on to the end of the next object. After End or Fault there is nothing more to read.
    Result Next();

    /// The object read last. An object without a name line keeps the name of the one before it.
    std::string const& GetName() const { return name; }
    int GetVertexCount() const { return vertex_count; }
    int GetFaceCount() const { return face_count; }

    /// vertex count x 3 floats: x, y, z. (Beyond that, what earlier objects left, else noughts: a face may refer to
    /// it.)
    GLfloat const (*GetVertices() const)[3] { return work->vertices; }
    /// face count x 3 ints: vertices A, B, C, 0-based, each below max_vertices
    int const (*GetFaces() const)[3] { return work->faces; }
    /// face count x 3 ints: visibility of the edges AB, BC, CA, 1 = visible
    int const (*GetEdges() const)[3] { return work->edges; }

    /// What is wrong, in words, after Result::Fault.
    std::string const& GetFault() const { return fault; }

private:
    struct Work {
        GLfloat vertices[max_vertices][3];
        int faces[max_faces][3];
        int edges[max_faces][3];
    };
    /// How a part of an object ended.
    enum class Part { Done, Short, Fault };

    bool NextLine(std::string_view& line);
    Part ReadHeader();
    Part ReadVertices();
    Part ReadFaces();
    bool ScanVertex(std::string_view line);
    bool ScanFace(std::string_view line);
    bool AddVertex();
    bool AddFace();
    /// Whether a face can refer to it.
    bool IsVertex(long long corner) { return (corner >= 0 && corner < vertices_known) || MakeVertex(corner); }
    bool MakeVertex(long long corner);
    bool Fail(std::string message);
    /// Fails for a limit of ours. These reports name the file; the others are fixed texts.
    bool Refuse(std::string const& what) { return Fail("Bad file format in " + path + ": " + what + "."); }
    char const* Terminated(std::string_view line);

    std::string path;
    FileText file;
    std::size_t at = 0;
    int objects = 0;     ///< so far
    bool at_end = false; ///< set by the read that finds no line feed
    std::string buffer;  ///< one line, for the patterns of scanf

    std::unique_ptr<Work> work; ///< holds nothing beyond what has been read
    int vertices_known = 0;     ///< of all objects so far: the most there were, or one asked for
    std::string name;
    int vertex_count = 0; ///< as the header says
    int face_count = 0;
    int vertices_read = 0;
    int faces_read = 0;
    float vertex[3] = {0, 0, 0}; ///< the fields of the last line read: a line that does not parse repeats them
    int face[6] = {0, 0, 0, 0, 0, 0};
    std::string fault;
};

} // namespace kore
