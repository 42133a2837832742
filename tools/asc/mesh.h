// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace asc {

/// A point or a direction, in units of the mesh.
struct Vec3 {
    double x = 0.0, y = 0.0, z = 0.0;

    friend Vec3 operator+(Vec3 a, Vec3 b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
    friend Vec3 operator-(Vec3 a, Vec3 b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
    friend Vec3 operator*(Vec3 a, double f) { return {a.x * f, a.y * f, a.z * f}; }
    friend bool operator==(Vec3 const&, Vec3 const&) = default;
    friend auto operator<=>(Vec3 const&, Vec3 const&) = default;
};

double dot(Vec3 a, Vec3 b);
Vec3 cross(Vec3 a, Vec3 b);
double length(Vec3 a);
/// The unit vector along a; (0, 0, 0) for a vector shorter than 1e-300.
Vec3 normalised(Vec3 a);

/// One triangle: 0-based vertex indices A, B, C and the edge flags AB, BC, CA (1 visible, 0 hidden).
struct Face {
    std::array<int, 3> v{};
    std::array<int, 3> edge{};
};

/// One named triangle mesh.
struct Object {
    std::string name;
    std::vector<Vec3> vertices;
    std::vector<Face> faces;
};

/// The smallest box around all vertices; both corners (0, 0, 0) if there are none.
struct Box {
    Vec3 low, high;
    /// True when the box has no extent along z (within 1e-9): the object is a flat shape across the view.
    bool IsFlat() const { return high.z - low.z < 1e-9; }
};
Box box_of(Object const& object);

/// Resolution of coordinates in a file, units: six decimals are written, so nothing thinner than this is a triangle.
inline constexpr double resolution = 1e-6;
/// The farthest that a vertex may lie from the origin along an axis, units: there `resolution` still tells two apart,
/// and every whole number of the tool's grids fits an integer.
inline constexpr double most_coordinate = 1e6;
/// Faces that meet at less than this angle count as coplanar, degrees.
inline constexpr double crease_angle = 1.0;

/// Twice the area of the triangle as a vector along its normal (right-hand rule over A, B, C).
Vec3 face_normal(Object const& object, Face const& face);
/// The triangle's smallest height, units: 0 for one without area.
double face_height(Object const& object, Face const& face);
/// The triangle's smallest angle, degrees.
double smallest_angle(Object const& object, Face const& face);
/// True when two corners are one vertex or the height is at most `resolution`.
bool degenerate(Object const& object, Face const& face);

/// One side of a face: `slot` 0 is A to B, 1 is B to C, 2 is C to A; `forward` when it runs from the lower index to the
/// higher.
struct Side {
    std::size_t face;
    int slot;
    bool forward;
};
/// All sides by their edge (lower index, higher index), in face order within an edge.
using Edges = std::map<std::pair<int, int>, std::vector<Side>>;
Edges edges_of(Object const& object);

/// The parts of the mesh that are connected by edges that `joins` accepts, as face indices: ascending within a part,
/// parts in the order of their first face.
std::vector<std::vector<std::size_t>> parts_of(Object const& object, Edges const& edges,
                                               std::function<bool(Edges::value_type const&)> const& joins);

/// True when every edge belongs to exactly two faces.
bool closed(Edges const& edges);
/// Sum of signed tetrahedra from the origin, cubic units; above 0 if a closed mesh's faces look outward.
double volume(Object const& object);

} // namespace asc
