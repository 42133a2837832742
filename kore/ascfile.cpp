// SPDX-License-Identifier: MIT
#include "kore/ascfile.h"

#include "kore/asclines.h"
#include "kore/readfile.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <limits>
#include <utility>

namespace kore {

namespace {

bool contains(std::string_view line, std::string_view keyword) {
    return memmem(line.data(), line.size(), keyword.data(), keyword.size()) != nullptr;
}

/// A line that ends something: empty, or a lone carriage return.
bool is_short(std::string_view line) { return line.size() < 2; }

bool is_count(long long n) { return n >= 1 && n <= std::numeric_limits<int>::max(); }

/// The text between the quotes of a name line, which ends in a quote and a carriage return.
std::string_view object_name(std::string_view line) {
    constexpr std::size_t first = 15; // behind: Named object: "
    constexpr std::size_t tail = 2;
    return line.size() > first + tail ? line.substr(first, line.size() - first - tail) : std::string_view();
}

} // namespace

// Not make_unique, which would fill all of it with zeros.
AscFile::AscFile() : work(new Work) {}

bool AscFile::Open(std::string const& path_) {
    path = path_;
    at = 0;
    objects = 0;
    at_end = false;
    return read_file(path, file, max_mesh_file);
}

bool AscFile::NextLine(std::string_view& line) {
    std::string_view const text = file.View();
    if (at >= text.size()) {
        at_end = true;
        return false;
    }
    char const* const start = text.data() + at;
    std::size_t const rest = text.size() - at;
    auto const* const feed = static_cast<char const*>(std::memchr(start, '\n', rest));
    std::size_t const length = feed ? static_cast<std::size_t>(feed - start) : rest;
    if (!feed) at_end = true;
    line = {start, length};
    at += length + 1;
    return true;
}

AscFile::Result AscFile::Next() {
    if (at_end) return Result::End;
    vertex_count = face_count = vertices_read = faces_read = 0;

    Part part = ReadHeader();
    if (part == Part::Done) part = ReadVertices();
    if (part == Part::Done) part = ReadFaces();
    if (part == Part::Done && ++objects > max_mesh_objects) {
        Refuse("more than " + std::to_string(max_mesh_objects) + " objects");
        part = Part::Fault;
    }
    if (part == Part::Done) return Result::Object;
    at_end = true;
    return part == Part::Short ? Result::End : Result::Fault;
}

AscFile::Part AscFile::ReadHeader() {
    std::string_view line;
    while (NextLine(line)) {
        if (is_short(line)) return Part::Short;
        if (contains(line, "Named object:")) name = object_name(line);
        if (contains(line, "Tri-mesh, Vertices")) {
            long long counts[2] = {0, 0}; // wide enough for the pattern to tell a count that no int holds
            std::sscanf(Terminated(line), "Tri-mesh, Vertices: %lld Faces: %lld", &counts[0], &counts[1]);
            if (!is_count(counts[0]) || !is_count(counts[1])) {
                Fail("Bad file format");
                return Part::Fault;
            }
            vertex_count = static_cast<int>(counts[0]);
            face_count = static_cast<int>(counts[1]);
            return Part::Done;
        }
    }
    return Part::Done; // the file has ended; the vertices that are missing now will be noticed
}

AscFile::Part AscFile::ReadVertices() {
    std::string_view line;
    while (NextLine(line)) {
        if (is_short(line)) return Part::Short;
        // A plain line, and nearly all are plain, needs no look for keywords.
        if (parse_plain_vertex(line, vertex)) {
            if (!AddVertex()) return Part::Fault;
            continue;
        }
        if (contains(line, "Vertex list:")) continue;
        if (contains(line, "Vertex") && !ScanVertex(line)) return Part::Fault;
        if (contains(line, "Face list:")) break;
    }
    if (vertices_read == 0 || vertices_read != vertex_count) {
        Fail("Bad file format, vertex count mismatch.");
        return Part::Fault;
    }
    return Part::Done;
}

AscFile::Part AscFile::ReadFaces() {
    std::string_view line;
    while (NextLine(line) && !is_short(line)) {
        if (parse_plain_face(line, face)) {
            if (!AddFace()) return Part::Fault;
        } else if (contains(line, "Face") && !ScanFace(line)) {
            return Part::Fault;
        }
    }
    if (faces_read == 0 || faces_read != face_count) {
        Fail("Bad file format, face count mismatch. Reported: " + std::to_string(face_count) +
             " counted: " + std::to_string(faces_read));
        return Part::Fault;
    }
    return Part::Done;
}

bool AscFile::ScanVertex(std::string_view line) {
    int index = 0;
    std::sscanf(Terminated(line), "Vertex %d: X:%f Y:%f Z:%f", &index, &vertex[0], &vertex[1], &vertex[2]);
    return AddVertex();
}

bool AscFile::AddVertex() {
    if (vertices_read == max_vertices) {
        return Refuse("more than " + std::to_string(max_vertices) + " vertices");
    }
    std::memcpy(work->vertices[vertices_read], vertex, sizeof vertex);
    ++vertices_read;
    vertices_known = std::max(vertices_known, vertices_read);
    return true;
}

bool AscFile::ScanFace(std::string_view line) {
    int index = 0;
    long long corners[3] = {face[0], face[1], face[2]}; // wide, as the counts are
    std::sscanf(Terminated(line), "Face %d: A:%lld B:%lld C:%lld AB:%d BC:%d CA:%d", &index, &corners[0], &corners[1],
                &corners[2], &face[3], &face[4], &face[5]);
    for (int corner = 0; corner < 3; ++corner) {
        if (!IsVertex(corners[corner])) return false;
        face[corner] = static_cast<int>(corners[corner]);
    }
    return AddFace();
}

bool AscFile::AddFace() {
    if (faces_read == max_faces) return Refuse("more than " + std::to_string(max_faces) + " faces");
    for (int corner = 0; corner < 3; ++corner) {
        if (!IsVertex(face[corner])) return false;
        work->faces[faces_read][corner] = face[corner];
        work->edges[faces_read][corner] = face[corner + 3];
    }
    ++faces_read;
    return true;
}

/// Vertices that no object has had are at the origin.
bool AscFile::MakeVertex(long long corner) {
    if (corner < 0 || corner >= max_vertices) {
        return Refuse("face " + std::to_string(faces_read) + " has no vertex " + std::to_string(corner));
    }
    for (; vertices_known <= corner; ++vertices_known) {
        for (GLfloat& component : work->vertices[vertices_known]) component = 0;
    }
    return true;
}

bool AscFile::Fail(std::string message) {
    fault = std::move(message);
    return false;
}

char const* AscFile::Terminated(std::string_view line) {
    buffer.assign(line);
    return buffer.c_str();
}

} // namespace kore
