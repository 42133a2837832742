// SPDX-License-Identifier: MIT
#include "tools/asc/refine.h"

#include "tools/asc/ascfile.h"
#include "tools/asc/creases.h"
#include "tools/asc/repair.h"

#include <CGAL/Constrained_Delaunay_triangulation_2.h>
#include <CGAL/Delaunay_mesh_face_base_2.h>
#include <CGAL/Delaunay_mesh_size_criteria_2.h>
#include <CGAL/Delaunay_mesh_vertex_base_2.h>
#include <CGAL/Delaunay_mesher_2.h>
#include <CGAL/Exact_predicates_inexact_constructions_kernel.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <set>

namespace asc {

namespace {

using Kernel = CGAL::Exact_predicates_inexact_constructions_kernel;
using Vertices = CGAL::Delaunay_mesh_vertex_base_2<Kernel>;
using Faces = CGAL::Delaunay_mesh_face_base_2<Kernel>;
using Triangulation =
    CGAL::Constrained_Delaunay_triangulation_2<Kernel, CGAL::Triangulation_data_structure_2<Vertices, Faces>>;
using Criteria = CGAL::Delaunay_mesh_size_criteria_2<Triangulation>;
using Mesher = CGAL::Delaunay_mesher_2<Triangulation, Criteria>;
using Point = Kernel::Point_2;

/// A crease of the mesh and the places along it, 0 at its lower vertex to 1 at the higher, where it is cut.
using Cuts = std::map<Edge, std::set<double>>;

/// The plane of a facet: two directions at right angles and an origin.
struct Plane {
    Vec3 origin, u, v;

    Plane(Vec3 at, Vec3 normal) : origin(at) {
        Vec3 const n = normalised(normal);
        Vec3 const aside = std::abs(n.y) < 0.9 ? Vec3{0, 1, 0} : Vec3{0, 0, 1};
        u = normalised(cross(aside, n));
        v = cross(n, u);
    }
    Point Flat(Vec3 p) const { return {dot(p - origin, u), dot(p - origin, v)}; }
    Vec3 Solid(Point const& p) const { return origin + u * p.x() + v * p.y(); }
};

/// One facet: its outline in the mesh and, after Mesh, its triangles.
class Facet {
public:
    Facet(Object const& in, std::vector<std::size_t> const& faces, std::set<Edge> const& shown)
        : object(in), plane(in.vertices[index(in.faces[faces[0]].v[0])], NormalOf(in, faces)) {
        for (std::size_t f : faces) {
            auto const& v = in.faces[f].v;
            auto const corner = [&](std::size_t i) { return plane.Flat(in.vertices[index(v[i])]); };
            seeds.push_back(CGAL::centroid(corner(0), corner(1), corner(2)));
            for (std::size_t slot = 0; slot < 3; ++slot) {
                Edge const edge = std::minmax(v[slot], v[(slot + 1) % 3]);
                if (shown.contains(edge)) outline.push_back(edge);
            }
        }
    }

    /// Triangulates the facet with its outline cut at `cuts`; adds the cuts that the refinement needs.
    void Mesh(Cuts& cuts, double size, double min_angle) {
        Build(cuts);
        Mesher mesher(triangulation);
        mesher.set_seeds(seeds.begin(), seeds.end(), true);
        double const s = std::sin(min_angle * std::numbers::pi / 180.0);
        mesher.set_criteria(Criteria(s * s, size));
        mesher.refine_mesh();
        NoteNewCuts(cuts);
        built_with = CutsOnOutline(cuts);
    }

    /// True if the outline's cuts have changed since the triangles were made.
    bool IsStale(Cuts const& cuts) const { return built_with != CutsOnOutline(cuts); }

    /// Appends the triangles to `out`; vertices are joined later.
    void Append(Object& out) {
        for (auto f = triangulation.finite_faces_begin(); f != triangulation.finite_faces_end(); ++f) {
            if (!f->is_in_domain()) continue;
            Face face;
            for (int i = 0; i < 3; ++i) {
                auto const known = solid.find(f->vertex(i));
                face.v[static_cast<std::size_t>(i)] = static_cast<int>(out.vertices.size());
                out.vertices.push_back(known != solid.end() ? known->second : plane.Solid(f->vertex(i)->point()));
            }
            out.faces.push_back(face);
        }
    }

private:
    static std::size_t index(int v) { return static_cast<std::size_t>(v); }

    static Vec3 NormalOf(Object const& in, std::vector<std::size_t> const& faces) {
        Vec3 sum;
        for (std::size_t f : faces) sum = sum + face_normal(in, in.faces[f]);
        return sum;
    }

    Vec3 At(Edge const& edge, double t) const {
        Vec3 const a = object.vertices[index(edge.first)], b = object.vertices[index(edge.second)];
        return t == 0.0 ? a : t == 1.0 ? b : a + (b - a) * t;
    }

    void Build(Cuts const& cuts) {
        triangulation.clear();
        solid.clear();
        for (Edge const& edge : outline) {
            Triangulation::Vertex_handle last;
            for (double t : cuts.at(edge)) {
                Vec3 const p = At(edge, t);
                auto const vertex = triangulation.insert(plane.Flat(p));
                solid[vertex] = p;
                if (t > 0.0) triangulation.insert_constraint(last, vertex);
                last = vertex;
            }
        }
    }

    void NoteNewCuts(Cuts& cuts) {
        for (auto e = triangulation.finite_edges_begin(); e != triangulation.finite_edges_end(); ++e) {
            if (!triangulation.is_constrained(*e)) continue;
            for (int i : {1, 2}) {
                auto const vertex = e->first->vertex((e->second + i) % 3);
                if (solid.contains(vertex)) continue;
                auto const [edge, t] = PlaceOnOutline(plane.Solid(vertex->point()));
                cuts[edge].insert(t);
                solid[vertex] = At(edge, t);
            }
        }
    }

    std::pair<Edge, double> PlaceOnOutline(Vec3 p) const {
        std::pair<Edge, double> best;
        double nearest = -1.0;
        for (Edge const& edge : outline) {
            Vec3 const a = At(edge, 0.0), d = At(edge, 1.0) - a;
            double const t = std::clamp(dot(p - a, d) / dot(d, d), 0.0, 1.0);
            double const away = length(a + d * t - p);
            if (nearest < 0.0 || away < nearest) {
                nearest = away;
                best = {edge, t};
            }
        }
        return best;
    }

    std::vector<std::set<double>> CutsOnOutline(Cuts const& cuts) const {
        std::vector<std::set<double>> all;
        for (Edge const& edge : outline) all.push_back(cuts.at(edge));
        return all;
    }

    Object const& object;
    Plane plane;
    std::vector<Edge> outline;
    std::vector<Point> seeds; ///< points inside: the mesher fills the outline from there
    Triangulation triangulation;
    std::map<Triangulation::Vertex_handle, Vec3> solid; ///< the points on the outline, in the mesh
    std::vector<std::set<double>> built_with;
};

/// Every crease cut into equal pieces no longer than `size`.
Cuts even_cuts(Object const& object, std::set<Edge> const& shown, double size) {
    Cuts cuts;
    for (Edge const& edge : shown) {
        Vec3 const a = object.vertices[static_cast<std::size_t>(edge.first)];
        double const l = length(object.vertices[static_cast<std::size_t>(edge.second)] - a);
        int const pieces = std::max(1, static_cast<int>(std::ceil(l / size - 1e-9)));
        for (int i = 0; i <= pieces; ++i) cuts[edge].insert(static_cast<double>(i) / pieces);
    }
    return cuts;
}

} // namespace

double least_refined(Object const& object, double size) {
    double area = 0, border = 0;
    for (Face const& face : object.faces) area += length(face_normal(object, face)) / 2;
    for (Edge const& edge : creases(object)) {
        border += length(object.vertices[static_cast<std::size_t>(edge.first)] -
                         object.vertices[static_cast<std::size_t>(edge.second)]);
    }
    double const largest = std::numbers::sqrt3 / 4 * size * size; // equilateral
    return std::max(area / largest, border / size / 3);
}

bool refine(Object& object, double size, double min_angle) {
    Edges const edges = edges_of(object);
    std::set<Edge> const shown = creases(object);
    std::vector<Facet> facets;
    auto const within_a_facet = [&](auto const& edge) { return !shown.contains(edge.first); };
    for (auto const& faces : parts_of(object, edges, within_a_facet)) facets.emplace_back(object, faces, shown);

    Cuts cuts = even_cuts(object, shown, size);
    // A facet may cut an edge that it shares; then its neighbour is meshed again with that cut.
    constexpr int most_rounds = 30;
    for (int round = 0; round < most_rounds; ++round) {
        bool changed = false;
        for (Facet& facet : facets) {
            if (!facet.IsStale(cuts)) continue;
            facet.Mesh(cuts, size, min_angle);
            changed = true;
        }
        if (changed) continue;
        Object result;
        result.name = object.name;
        for (Facet& facet : facets) facet.Append(result);
        clean(result);
        object = std::move(result);
        return true;
    }
    return false;
}

} // namespace asc
