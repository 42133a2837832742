#include "tools/asc/picture.h"

#include "kore/frustum.h"
#include "tools/asc/creases.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

namespace asc {

namespace {

constexpr int fine = 3; ///< pictures are drawn this many times larger and shrunk
constexpr std::uint8_t black = 0, grey = 170, white = 255;

Vec3 turned(Vec3 p, Vec3 degrees) {
    auto const rotate = [](double& a, double& b, double angle) {
        double const c = std::cos(angle * std::numbers::pi / 180.0), s = std::sin(angle * std::numbers::pi / 180.0);
        double const was = a;
        a = c * was - s * b;
        b = s * was + c * b;
    };
    rotate(p.x, p.y, degrees.z);
    rotate(p.z, p.x, degrees.y);
    rotate(p.y, p.z, degrees.x);
    return p;
}

/// Edges to draw, by vertex indices.
std::set<Edge> every_edge(Object const& object) {
    std::set<Edge> all;
    for (auto const& [edge, sides] : edges_of(object)) all.insert(edge);
    return all;
}

/// The camera's space: x right, y up, z the distance ahead.
class Eye {
public:
    explicit Eye(View const& v) : view(v), ahead(normalised(v.look - v.camera)) {
        right = normalised(cross(ahead, {0, 1, 0}));
        if (length(right) == 0.0) right = {1, 0, 0};
        up = cross(right, ahead);
    }
    Vec3 seen(Vec3 p) const {
        p = turned({p.x * view.scale.x, p.y * view.scale.y, p.z * view.scale.z}, view.turn) + view.at - view.camera;
        return {dot(p, right), dot(p, up), dot(p, ahead)};
    }

private:
    View const& view;
    Vec3 ahead, right, up;
};

constexpr double near_plane = kore::frustum::near_plane;
static_assert(kore::frustum::field_of_view == 90.0 && kore::frustum::aspect == 1.0); // as projected() has it

Vec3 on_near_plane(Vec3 a, Vec3 b) { return a + (b - a) * ((near_plane - a.z) / (b.z - a.z)); }

/// A point of the camera's space on the picture; nearness is 1/distance.
Vec3 projected(Vec3 p, int width, int height) {
    return {(p.x / p.z + 1.0) * 0.5 * width, (1.0 - p.y / p.z) * 0.5 * height, 1.0 / p.z};
}

/// Draws a triangle of the camera's space, cut at the near plane.
void draw_cut(Canvas& canvas, std::array<Vec3, 3> const& corners, std::uint8_t shade) {
    std::vector<Vec3> rest;
    for (std::size_t i = 0; i < 3; ++i) {
        Vec3 const a = corners[i], b = corners[(i + 1) % 3];
        if (a.z >= near_plane) rest.push_back(a);
        if ((a.z < near_plane) != (b.z < near_plane)) rest.push_back(on_near_plane(a, b));
    }
    for (Vec3& p : rest) p = projected(p, canvas.width(), canvas.height());
    for (std::size_t i = 2; i < rest.size(); ++i) canvas.triangle(rest[0], rest[i - 1], rest[i], shade);
}

void draw_cut_line(Canvas& canvas, Vec3 a, Vec3 b, std::uint8_t shade) {
    if (a.z < near_plane && b.z < near_plane) return;
    if (a.z < near_plane) a = on_near_plane(a, b);
    if (b.z < near_plane) b = on_near_plane(b, a);
    Vec3 const p = projected(a, canvas.width(), canvas.height()), q = projected(b, canvas.width(), canvas.height());
    canvas.line(p, q, shade, 0.002 * std::max(p.z, q.z), fine);
}

/// How to turn a mesh for its panel: flat ones not at all, others to the side that shows most of them. The first
/// side, upper right, is kept unless another shows a tenth more.
Vec3 best_turn(Object const& object, bool flat) {
    if (flat) return {};
    Vec3 best;
    double most = 0.0;
    for (Vec3 const& turn : {Vec3{25, -30, 0}, Vec3{25, 30, 0}, Vec3{-25, -30, 0}, Vec3{-25, 30, 0}}) {
        double seen = 0.0;
        for (Face const& face : object.faces) seen += std::abs(turned(face_normal(object, face), turn).z);
        if (seen < 1.1 * most) continue;
        most = seen;
        best = turn;
    }
    return best;
}

/// One object in a square panel, seen without perspective.
Canvas draw_panel(Object const& object, int size, bool solid) {
    Box const box = box_of(object);
    Vec3 const middle = (box.low + box.high) * 0.5;
    Vec3 const turn = best_turn(object, box.flat());
    std::vector<Vec3> places;
    double reach = 1e-9;
    for (Vec3 const& p : object.vertices) {
        Vec3 q = turned(p - middle, turn);
        q.x *= 4.0 / 3.0;
        reach = std::max({reach, std::abs(q.x), std::abs(q.y)});
        places.push_back(q);
    }
    Canvas canvas(size * fine, size * fine, white);
    double const f = 0.46 * size * fine / reach;
    for (Vec3& p : places) p = {0.5 * size * fine + f * p.x, 0.5 * size * fine - f * p.y, f * p.z};
    auto const place = [&](int v) { return places[static_cast<std::size_t>(v)]; };
    for (Face const& face : object.faces)
        canvas.triangle(place(face.v[0]), place(face.v[1]), place(face.v[2]), solid ? black : white);
    if (!solid)
        for (auto const& [from, to] : every_edge(object)) canvas.line(place(from), place(to), grey, 0.5 * fine, fine);
    if (!solid || !box.flat())
        for (auto const& [from, to] : drawn_edges(object))
            canvas.line(place(from), place(to), solid ? white : black, fine, fine);
    return canvas.shrunk(fine);
}

} // namespace

Canvas draw_view(std::vector<Object> const& objects, View const& view, int width, int height) {
    Canvas canvas(width * fine, height * fine, view.white ? black : white);
    std::uint8_t const body = view.white ? white : black, contrast = view.white ? black : white;
    Eye const eye(view);
    for (Object const& object : objects) {
        std::vector<Vec3> places;
        for (Vec3 const& p : object.vertices) places.push_back(eye.seen(p));
        auto const place = [&](int v) { return places[static_cast<std::size_t>(v)]; };
        for (Face const& face : object.faces)
            draw_cut(canvas, {place(face.v[0]), place(face.v[1]), place(face.v[2])}, body);
        if (!view.lines) continue;
        for (auto const& [from, to] : view.all_lines ? every_edge(object) : drawn_edges(object))
            draw_cut_line(canvas, place(from), place(to), contrast);
    }
    return canvas.shrunk(fine);
}

Canvas draw_sheet(std::vector<Object> const& objects, int columns, int panel) {
    constexpr int caption = 22, gap = 8;
    int const cell_width = 2 * panel + 3 * gap, cell_height = panel + caption + gap;
    int const count = static_cast<int>(objects.size());
    columns = std::clamp(columns, 1, std::max(1, count));
    Canvas sheet(columns * cell_width, std::max(1, (count + columns - 1) / columns) * cell_height, 225);
    for (int i = 0; i < count; ++i) {
        Object const& object = objects[static_cast<std::size_t>(i)];
        int const x = i % columns * cell_width + gap, y = i / columns * cell_height + gap;
        sheet.paste(draw_panel(object, panel, true), x, y);
        sheet.paste(draw_panel(object, panel, false), x + panel + gap, y);
        sheet.text(x, y + panel + 4, object.name + "  " + std::to_string(object.faces.size()) + " faces", 1, black);
    }
    return sheet;
}

} // namespace asc
