// SPDX-License-Identifier: MIT
#include "tests/flashes/canvas.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace flashes {

namespace {

bool finite(Clip const& p) {
    return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z) && std::isfinite(p.w);
}

constexpr int screen_width = 1024; // pixels

/// How far a point lies before the near plane; below 0 behind it.
float before_near(Clip const& p) { return p.z + p.w; }

Clip between(Clip const& a, Clip const& b, float f) {
    return {a.x + (b.x - a.x) * f, a.y + (b.y - a.y) * f, a.z + (b.z - a.z) * f, a.w + (b.w - a.w) * f};
}

/// Where the way from a to b goes through the near plane.
Clip at_near(Clip const& a, Clip const& b) { return between(a, b, before_near(a) / (before_near(a) - before_near(b))); }

/// The first pixel whose centre lies at or past an edge, which is at 0 or above.
int nearest(float edge) { return static_cast<int>(edge + 0.5f); }

// Bits of Corner::beyond: a plane each (Cohen and Sutherland), and two for points that have no place.
constexpr int sides = 0x3f;
constexpr int at_or_behind_near = 0x40;
constexpr int nowhere = 0x80;

int outcode(Clip const& p) {
    return (p.x < -p.w) | (p.x > p.w) << 1 | (p.y < -p.w) << 2 | (p.y > p.w) << 3 | (p.z < -p.w) << 4 |
           (p.z > p.w) << 5 | (before_near(p) > 0 ? 0 : at_or_behind_near) | (finite(p) ? 0 : nowhere);
}

} // namespace

Canvas::Canvas(int width_, int height_) : width(width_), height(height_) {
    auto const size = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    levels.resize(size);
    depths.resize(size);
    Clear(0);
}

void Canvas::Clear(float level) {
    std::ranges::fill(levels, level);
    std::ranges::fill(depths, 1.0f);
}

Canvas::Point Canvas::Project(Clip const& p) const {
    float const f = 1 / p.w;
    return {(p.x * f + 1) / 2 * static_cast<float>(width), (1 - p.y * f) / 2 * static_cast<float>(height), p.z * f};
}

Canvas::Corner Canvas::Place(Clip const& p) const {
    int const beyond = outcode(p);
    return {p, beyond < at_or_behind_near ? Project(p) : Point{}, beyond};
}

void Canvas::Triangle(Corner const& a, Corner const& b, Corner const& c, float level) {
    int const any = a.beyond | b.beyond | c.beyond;
    if ((a.beyond & b.beyond & c.beyond & sides) != 0 || (any & nowhere) != 0) return;
    if ((any & at_or_behind_near) != 0) {
        FillBeforeNear({a.clip, b.clip, c.clip}, level);
    } else {
        Fill(a.point, b.point, c.point, level);
    }
}

void Canvas::FillBeforeNear(std::array<Clip, 3> const& corners, float level) {
    std::array<Point, 4> points{};
    std::size_t count = 0;
    for (std::size_t i = 0; i < 3; ++i) {
        Clip const& p = corners[i];
        Clip const& q = corners[(i + 1) % 3];
        if (before_near(p) > 0) points[count++] = Project(p);
        if ((before_near(p) > 0) != (before_near(q) > 0)) points[count++] = Project(at_near(p, q));
    }
    for (std::size_t i = 2; i < count; ++i) Fill(points[0], points[i - 1], points[i], level);
}

void Canvas::Fill(Point a, Point b, Point c, float level) {
    auto const bottom = static_cast<float>(height);
    auto const right = static_cast<float>(width);
    auto const misses_centres = [](float p, float q, float r, float edge) {
        return nearest(std::clamp(std::min({p, q, r}), 0.0f, edge)) ==
               nearest(std::clamp(std::max({p, q, r}), 0.0f, edge));
    };
    if (misses_centres(a.y, b.y, c.y, bottom) || misses_centres(a.x, b.x, c.x, right)) return; // as small ones do
    float const area = (b.x - a.x) * (c.y - a.y) - (c.x - a.x) * (b.y - a.y);
    if (area == 0) return;
    float const dzdx = ((b.z - a.z) * (c.y - a.y) - (c.z - a.z) * (b.y - a.y)) / area;
    float const dzdy = ((c.z - a.z) * (b.x - a.x) - (b.z - a.z) * (c.x - a.x)) / area;
    if (a.y > b.y) std::swap(a, b);
    if (b.y > c.y) std::swap(b, c);
    if (a.y > b.y) std::swap(a, b);
    float const slope = (c.x - a.x) / (c.y - a.y);
    float const upper = (b.x - a.x) / (b.y - a.y);
    float const lower = (c.x - b.x) / (c.y - b.y);
    int const last = nearest(std::clamp(c.y, 0.0f, bottom));
    for (int row = nearest(std::clamp(a.y, 0.0f, bottom)); row < last; ++row) {
        float const y = static_cast<float>(row) + 0.5f;
        float const x1 = a.x + slope * (y - a.y);
        float const x2 = y < b.y ? a.x + upper * (y - a.y) : b.x + lower * (y - b.y);
        int const from = nearest(std::clamp(std::min(x1, x2), 0.0f, right));
        int const to = nearest(std::clamp(std::max(x1, x2), 0.0f, right));
        float z = a.z + (static_cast<float>(from) + 0.5f - a.x) * dzdx + (y - a.y) * dzdy;
        for (int x = from; x < to; ++x, z += dzdx) Put(x, row, z, level);
    }
}

void Canvas::Line(Corner const& a, Corner const& b, float level) {
    if ((a.beyond & b.beyond & (sides | at_or_behind_near)) != 0 || ((a.beyond | b.beyond) & nowhere) != 0) return;
    auto const end = [&](Corner const& c) {
        return (c.beyond & at_or_behind_near) != 0 ? Project(at_near(a.clip, b.clip)) : c.point;
    };
    Point const p = end(a);
    Point const q = end(b);
    float const steps = std::max(std::abs(q.x - p.x), std::abs(q.y - p.y));
    auto const bottom = static_cast<float>(height);
    auto const right = static_cast<float>(width);
    // The part of the line that lies within the picture, as shares of its length.
    float from = 0;
    float to = 1;
    auto const within = [&](float start, float way, float edge) {
        if (way == 0) return;
        float const t1 = -start / way;
        float const t2 = (edge - start) / way;
        from = std::max(from, std::min(t1, t2));
        to = std::min(to, std::max(t1, t2));
    };
    within(p.x, q.x - p.x, right);
    within(p.y, q.y - p.y, bottom);
    if (from >= to || steps == 0) return;
    float const step = 1 / steps;
    int const last = static_cast<int>(to * steps);
    int const every = std::max(screen_width / width, 1);
    int i = static_cast<int>(from * steps);
    // The first pixel differs from line to line, so that short ones do not all have one.
    i += std::abs(static_cast<int>(std::clamp(p.x, -1e6f, 1e6f)) + 2 * static_cast<int>(std::clamp(p.y, -1e6f, 1e6f))) %
         every;
    for (; i <= last; i += every) {
        float const f = static_cast<float>(i) * step;
        float const x = p.x + (q.x - p.x) * f;
        float const y = p.y + (q.y - p.y) * f;
        if (x < 0 || y < 0 || x >= right || y >= bottom) continue;
        Put(static_cast<int>(x), static_cast<int>(y), p.z + (q.z - p.z) * f, level);
    }
}

} // namespace flashes
