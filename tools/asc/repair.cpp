// SPDX-License-Identifier: MIT
#include "tools/asc/repair.h"

#include "tools/asc/ascfile.h"

#include <CGAL/Polygon_mesh_processing/orient_polygon_soup.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <set>
#include <unordered_map>

namespace asc {

namespace {

/// Points in a grid whose cells are as wide as the distance that is looked for.
class Grid {
public:
    explicit Grid(double width) : cell(width) {}

    void Add(Vec3 p, int index) { cells[CellOf(p)].push_back({p, index}); }

    /// @return index of the point nearer than a cell's width, the first in the order of x, y, z if there are several;
    /// -1
    ///         if there is none
    int Find(Vec3 p) const {
        Entry const* best = nullptr;
        auto const [x, y, z] = CellOf(p);
        for (std::int64_t i = x - 1; i <= x + 1; ++i) {
            for (std::int64_t j = y - 1; j <= y + 1; ++j) {
                for (std::int64_t k = z - 1; k <= z + 1; ++k) best = Better(best, {i, j, k}, p);
            }
        }
        return best ? best->index : -1;
    }

private:
    using Cell = std::array<std::int64_t, 3>;
    struct Entry {
        Vec3 point;
        int index;
    };
    struct Hash {
        std::size_t operator()(Cell const& c) const {
            std::uint64_t hash = 0;
            for (std::int64_t const part : c) hash = (hash ^ static_cast<std::uint64_t>(part)) * 0x9E3779B97F4A7C15U;
            return hash ^ hash >> 32;
        }
    };

    Cell CellOf(Vec3 p) const {
        auto const whole = [this](double v) { return static_cast<std::int64_t>(std::floor(v / cell)); };
        return {whole(p.x), whole(p.y), whole(p.z)};
    }
    Entry const* Better(Entry const* best, Cell const& where, Vec3 p) const {
        auto const found = cells.find(where);
        if (found == cells.end()) return best;
        for (Entry const& entry : found->second) {
            if (length(entry.point - p) < cell && (!best || entry.point < best->point)) best = &entry;
        }
        return best;
    }

    double cell;
    std::unordered_map<Cell, std::vector<Entry>, Hash> cells;
};

/// Not CGAL's: it merges equal points only.
void weld(Object& object, double distance) {
    std::vector<Vec3> kept;
    Grid grid(distance);
    std::vector<int> to;
    for (Vec3 const& vertex : object.vertices) {
        Vec3 const p = {rounded(vertex.x), rounded(vertex.y), rounded(vertex.z)};
        int index = grid.Find(p);
        if (index < 0) {
            index = static_cast<int>(kept.size());
            grid.Add(p, index);
            kept.push_back(p);
        }
        to.push_back(index);
    }
    for (Face& face : object.faces) {
        for (int& v : face.v) v = to[static_cast<std::size_t>(v)];
    }
    object.vertices = std::move(kept);
}

bool repeats_corner(Face const& face) {
    auto const& [a, b, c] = face.v;
    return a == b || b == c || c == a;
}

void drop_duplicates(Object& object) {
    std::set<std::array<int, 3>> seen;
    std::erase_if(object.faces, [&](Face const& face) {
        auto key = face.v;
        std::sort(key.begin(), key.end());
        return !seen.insert(key).second;
    });
}

/// The side of the face whose opposite corner is nearest to it: the longest one.
std::size_t longest_side(Object const& object, Face const& face) {
    std::size_t best = 0;
    double longest = -1.0;
    for (std::size_t i = 0; i < 3; ++i) {
        Vec3 const a = object.vertices[static_cast<std::size_t>(face.v[i])];
        double const l = length(object.vertices[static_cast<std::size_t>(face.v[(i + 1) % 3])] - a);
        if (l > longest) {
            longest = l;
            best = i;
        }
    }
    return best;
}

/// Removes the face `thin`, whose corners lie on one line, and splits the face across its longest side.
void dissolve(Object& object, std::size_t thin) {
    Face const face = object.faces[thin];
    std::size_t const slot = longest_side(object, face);
    int const a = face.v[slot], b = face.v[(slot + 1) % 3], c = face.v[(slot + 2) % 3];
    for (std::size_t f = 0; f < object.faces.size(); ++f) {
        if (f == thin) continue;
        for (std::size_t i = 0; i < 3; ++i) {
            auto const v = object.faces[f].v;
            int const p = v[i], q = v[(i + 1) % 3], r = v[(i + 2) % 3];
            if (!((p == a && q == b) || (p == b && q == a)) || r == c) continue;
            object.faces[f].v = {p, c, r};
            object.faces[thin].v = {c, q, r};
            return;
        }
    }
    object.faces.erase(object.faces.begin() + static_cast<std::ptrdiff_t>(thin));
}

/// Not CGAL's: it removes faces only if they have no area at all.
void dissolve_thin_faces(Object& object) {
    // Each step removes one thin face or moves it to the neighbour; the bound ends what would go in circles.
    for (std::size_t steps = 4 * object.faces.size() + 16; steps > 0; --steps) {
        std::erase_if(object.faces, repeats_corner);
        auto const thin = std::find_if(object.faces.begin(), object.faces.end(),
                                       [&](Face const& face) { return degenerate(object, face); });
        if (thin == object.faces.end()) return;
        dissolve(object, static_cast<std::size_t>(thin - object.faces.begin()));
    }
    std::erase_if(object.faces, [&](Face const& face) { return degenerate(object, face); });
}

void drop_loose(Object& object) {
    std::vector<int> to(object.vertices.size(), -1);
    std::vector<Vec3> kept;
    for (Face& face : object.faces) {
        for (int& v : face.v) {
            int& index = to[static_cast<std::size_t>(v)];
            if (index < 0) {
                index = static_cast<int>(kept.size());
                kept.push_back(object.vertices[static_cast<std::size_t>(v)]);
            }
            v = index;
        }
    }
    object.vertices = std::move(kept);
}

void turn_over(Face& face) { std::swap(face.v[1], face.v[2]); }

/// Flips faces so that neighbours agree.
void orient(Object& object) {
    struct Visitor : CGAL::Polygon_mesh_processing::Default_orientation_visitor {
        explicit Visitor(std::vector<Face>& all) : faces(all) {}
        void polygon_orientation_reversed(std::size_t f) { turn_over(faces[f]); }
        std::vector<Face>& faces;
    };
    Visitor visitor(object.faces);
    std::vector<Vec3> points = object.vertices;
    std::vector<std::array<int, 3>> polygons;
    for (Face const& face : object.faces) polygons.push_back(face.v);
    CGAL::Polygon_mesh_processing::orient_polygon_soup(points, polygons, CGAL::parameters::visitor(visitor));
}

/// True if the part should look the other way.
bool inside_out(Object const& object, Edges const& edges, std::vector<std::size_t> const& part) {
    Vec3 sum;
    double spread = 0.0, six_volumes = 0.0;
    bool ends = false;
    for (std::size_t f : part) {
        auto const& v = object.faces[f].v;
        auto const at = [&](std::size_t i) { return object.vertices[static_cast<std::size_t>(v[i])]; };
        Vec3 const n = face_normal(object, object.faces[f]);
        sum = sum + n;
        spread += std::hypot(n.x, n.y);
        six_volumes += dot(at(0), cross(at(1), at(2)));
        for (std::size_t i = 0; i < 3; ++i) ends = ends || edges.at(std::minmax(v[i], v[(i + 1) % 3])).size() != 2;
    }
    return ends ? spread < 1e-3 * std::abs(sum.z) && sum.z < 0.0 : six_volumes < 0.0;
}

} // namespace

void clean(Object& object, double distance) {
    weld(object, distance);
    dissolve_thin_faces(object);
    drop_duplicates(object);
    drop_loose(object);
}

void wind(Object& object) {
    orient(object);
    Edges const edges = edges_of(object);
    auto const shared_by_two = [](auto const& edge) { return edge.second.size() == 2; };
    for (auto const& part : parts_of(object, edges, shared_by_two)) {
        if (!inside_out(object, edges, part)) continue;
        for (std::size_t f : part) turn_over(object.faces[f]);
    }
}

void keep_lowest_plane(Object& object) {
    double const z = box_of(object).low.z;
    std::erase_if(object.faces, [&](Face const& face) {
        return std::any_of(face.v.begin(), face.v.end(),
                           [&](int v) { return object.vertices[static_cast<std::size_t>(v)].z > z + weld_distance; });
    });
    drop_loose(object);
}

void centre(Object& object, Vec3 middle) {
    Box const box = box_of(object);
    Vec3 const shift = middle - (box.low + box.high) * 0.5;
    for (Vec3& p : object.vertices) p = p + shift;
}

} // namespace asc
