#include "tools/asc/repair.h"

#include "tools/asc/ascfile.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace asc {

namespace {

using Cell = std::array<long long, 3>;

/// The vertices kept so far, found by place.
class Welder {
public:
    explicit Welder(double within) : distance(within) {}

    /// The index of the kept vertex at p; p itself is kept when there is none nearer than the distance.
    int index_of(Vec3 p) {
        Cell const c = cell_of(p);
        for (long long i = -1; i <= 1; ++i)
            for (long long j = -1; j <= 1; ++j)
                for (long long k = -1; k <= 1; ++k) {
                    auto const found = cells.find({c[0] + i, c[1] + j, c[2] + k});
                    if (found == cells.end()) continue;
                    for (int at : found->second)
                        if (length(kept[static_cast<std::size_t>(at)] - p) < distance) return at;
                }
        kept.push_back(p);
        int const index = static_cast<int>(kept.size()) - 1;
        cells[c].push_back(index);
        return index;
    }
    std::vector<Vec3> kept;

private:
    Cell cell_of(Vec3 p) const {
        auto const at = [this](double v) { return std::llround(std::floor(v / distance)); };
        return {at(p.x), at(p.y), at(p.z)};
    }

    double distance;
    std::map<Cell, std::vector<int>> cells;
};

void weld(Object& object, double distance) {
    Welder welder(distance);
    std::vector<int> to;
    for (Vec3 const& p : object.vertices) to.push_back(welder.index_of({rounded(p.x), rounded(p.y), rounded(p.z)}));
    for (Face& face : object.faces)
        for (int& v : face.v) v = to[static_cast<std::size_t>(v)];
    object.vertices = std::move(welder.kept);
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

/// Takes out the face `thin`, whose corners lie on one line, and splits the face across its longest side.
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

void dissolve_thin_faces(Object& object) {
    // Each step takes out one thin face or moves it to the neighbour; the bound ends what would go in circles.
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
    for (Face& face : object.faces)
        for (int& v : face.v) {
            int& index = to[static_cast<std::size_t>(v)];
            if (index < 0) {
                index = static_cast<int>(kept.size());
                kept.push_back(object.vertices[static_cast<std::size_t>(v)]);
            }
            v = index;
        }
    object.vertices = std::move(kept);
}

void turn_over(Face& face) { std::swap(face.v[1], face.v[2]); }

/// The faces that hang together over edges of two faces, starting at `first`, turned to agree with it.
std::vector<std::size_t> agree(Object& object, Edges const& edges, std::size_t first, std::vector<bool>& seen) {
    std::vector<std::size_t> part{first};
    seen[first] = true;
    for (std::size_t next = 0; next < part.size(); ++next) {
        auto const v = object.faces[part[next]].v;
        for (std::size_t slot = 0; slot < 3; ++slot) {
            int const from = v[slot], to = v[(slot + 1) % 3];
            auto const& sides = edges.at(std::minmax(from, to));
            if (sides.size() != 2) continue;
            std::size_t const other = sides[0].face == part[next] ? sides[1].face : sides[0].face;
            if (seen[other]) continue;
            seen[other] = true;
            auto const& w = object.faces[other].v;
            for (std::size_t i = 0; i < 3; ++i)
                if (w[i] == from && w[(i + 1) % 3] == to) {
                    turn_over(object.faces[other]);
                    break;
                }
            part.push_back(other);
        }
    }
    return part;
}

/// True when the part should look the other way.
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
    Edges const edges = edges_of(object);
    std::vector<bool> seen(object.faces.size(), false);
    for (std::size_t first = 0; first < object.faces.size(); ++first) {
        if (seen[first]) continue;
        auto const part = agree(object, edges, first, seen);
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
