// SPDX-License-Identifier: MIT
#include "tools/asc/check.h"

#include "kore/asclimits.h"
#include "tools/asc/creases.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <set>

namespace asc {

namespace {

/// Collects the faults of one object.
class Checker {
public:
    Checker(ReadObject const& read, bool taken_apart) : object(read.object), where(read), shattered(taken_apart) {}

    std::vector<Fault> Run() {
        CheckCounts();
        CheckDoubleVertices();
        CheckLooseVertices();
        CheckFaces();
        CheckEdges();
        CheckOutside();
        return std::move(found);
    }

private:
    void Add(int line, std::string const& text) { found.push_back({line, "object '" + object.name + "': " + text}); }
    int VertexLine(std::size_t v) const { return v < where.vertex_lines.size() ? where.vertex_lines[v] : where.line; }
    int FaceLine(std::size_t f) const { return f < where.face_lines.size() ? where.face_lines[f] : where.line; }

    void CheckCounts() {
        int const faces = static_cast<int>(object.faces.size());
        auto const more_than = [](int limit) { return "more than " + std::to_string(limit); };
        if (static_cast<int>(object.vertices.size()) > kore::max_object_vertices) {
            Add(where.line, more_than(kore::max_object_vertices) + " vertices");
        }
        if (faces > kore::max_object_faces) Add(where.line, more_than(kore::max_object_faces) + " faces");
        if (shattered && faces > kore::max_object_faces_full) {
            Add(where.line, more_than(kore::max_object_faces_full) + " faces, too many to be shattered");
        }
    }

    void CheckDoubleVertices() {
        std::map<Vec3, std::size_t> at;
        for (std::size_t v = 0; v < object.vertices.size(); ++v) {
            auto const [first, fresh] = at.emplace(object.vertices[v], v);
            if (!fresh) {
                Add(VertexLine(v),
                    "vertex " + std::to_string(v) + " stands where vertex " + std::to_string(first->second) + " does");
            }
        }
    }

    void CheckLooseVertices() {
        std::vector<bool> used(object.vertices.size(), false);
        for (Face const& face : object.faces) {
            for (int v : face.v) used[static_cast<std::size_t>(v)] = true;
        }
        for (std::size_t v = 0; v < used.size(); ++v) {
            if (!used[v]) Add(VertexLine(v), "vertex " + std::to_string(v) + " belongs to no face");
        }
    }

    void CheckFaces() {
        std::map<std::array<int, 3>, std::size_t> at;
        for (std::size_t f = 0; f < object.faces.size(); ++f) {
            if (degenerate(object, object.faces[f])) Add(FaceLine(f), "face " + std::to_string(f) + " has no area");
            auto key = object.faces[f].v;
            std::sort(key.begin(), key.end());
            auto const [first, fresh] = at.emplace(key, f);
            if (!fresh) {
                Add(FaceLine(f), "face " + std::to_string(f) + " repeats face " + std::to_string(first->second));
            }
        }
    }

    void CheckEdges() {
        std::set<Edge> const wanted = creases(object), drawn = drawn_edges(object);
        for (auto const& [edge, sides] : edges_of(object)) {
            std::string const name = "edge " + std::to_string(edge.first) + "-" + std::to_string(edge.second);
            int const line = FaceLine(sides.front().face);
            auto const forward = std::count_if(sides.begin(), sides.end(), [](Side const& s) { return s.forward; });
            if (sides.size() % 2 == 0 && 2 * forward != static_cast<long>(sides.size())) {
                Add(line, name + ": its faces are wound against each other");
            }
            if (wanted.contains(edge) && !drawn.contains(edge)) Add(line, name + " is a crease and is not drawn");
            if (!wanted.contains(edge) && drawn.contains(edge)) Add(line, name + " is drawn and is no crease");
        }
    }

    void CheckOutside() {
        if (closed(edges_of(object)) && volume(object) < 0.0) Add(where.line, "its faces look inward");
    }

    Object const& object;
    ReadObject const& where;
    bool shattered;
    std::vector<Fault> found;
};

} // namespace

std::vector<Fault> faults_of(ReadObject const& read, bool shattered) { return Checker(read, shattered).Run(); }

std::vector<Fault> faults_of(ReadFile const& file, bool shattered) {
    std::vector<Fault> all = file.faults;
    for (ReadObject const& read : file.objects) {
        auto const some = faults_of(read, shattered);
        all.insert(all.end(), some.begin(), some.end());
    }
    std::stable_sort(all.begin(), all.end(), [](Fault const& a, Fault const& b) { return a.line < b.line; });
    return all;
}

std::string summary(Object const& object) {
    Box const box = box_of(object);
    double smallest = 180.0;
    std::size_t thin = 0, ends = 0;
    for (Face const& face : object.faces) {
        double const angle = smallest_angle(object, face);
        smallest = std::min(smallest, angle);
        thin += angle < 15.0 ? 1 : 0;
    }
    for (auto const& [edge, sides] : edges_of(object)) ends += sides.size() != 2 ? 1 : 0;
    std::string const kind = box.IsFlat() ? "flat" : ends == 0 ? "closed" : "open";
    std::array<char, 256> text{};
    std::snprintf(text.data(), text.size(),
                  ": %zu vertices, %zu faces, x %.3f..%.3f y %.3f..%.3f z %.3f..%.3f, %s, smallest angle %.1f, "
                  "%.0f%% below 15",
                  object.vertices.size(), object.faces.size(), box.low.x, box.high.x, box.low.y, box.high.y, box.low.z,
                  box.high.z, kind.c_str(), smallest,
                  100.0 * static_cast<double>(thin) / static_cast<double>(object.faces.size()));
    return object.name + text.data();
}

} // namespace asc
