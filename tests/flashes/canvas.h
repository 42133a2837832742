// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <vector>

namespace flashes {

/// A point in clip coordinates, as OpenGL has them: visible where -w <= x, y, z <= w.
struct Clip {
    float x, y, z, w;
};

/// A small picture in greys with a depth for every pixel, to draw flat triangles and lines into as OpenGL would: a
/// pixel belongs to a triangle that covers its centre, and what is nearer hides what is farther (GL_LESS).
class Canvas {
public:
    Canvas(int width_, int height_);

    int Width() const { return width; }
    int Height() const { return height; }

    /// Grey levels, upper row first: 0 black, 1 white.
    std::span<float const> Levels() const { return levels; }

    /// Covers all with one level, infinitely far away.
    void Clear(float level);

    struct Point {
        float x, y, z; ///< pixels from the upper left corner, depth from -1 (near) to 1 (far)
    };

    /// A point made ready to be a corner of many triangles and lines.
    struct Corner {
        Clip clip;
        Point point; ///< where it is before the near plane
        int beyond;  ///< a bit for each thing that keeps it out of the picture
    };

    Corner Place(Clip const& p) const;

    /// Draws what lies between the near and the far plane. Points that are not finite draw nothing.
    void Triangle(Corner const& a, Corner const& b, Corner const& c, float level);

    /// A line has one pixel in so many that it is on the whole as thin as on a screen 1024 pixels wide.
    void Line(Corner const& a, Corner const& b, float level);

private:
    Point Project(Clip const& p) const;
    void FillBeforeNear(std::array<Clip, 3> const& corners, float level);
    void Fill(Point a, Point b, Point c, float level);
    void Put(int x, int y, float z, float level) {
        auto const i = static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x);
        if (z >= depths[i]) return;
        depths[i] = z;
        levels[i] = level;
    }

    int width;
    int height;
    std::vector<float> levels;
    std::vector<float> depths;
};

} // namespace flashes
