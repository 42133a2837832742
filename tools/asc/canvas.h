#pragma once

#include "tools/asc/mesh.h"

#include <cstdint>
#include <string>
#include <vector>

namespace asc {

/// A grey picture with a depth buffer: x to the right and y down in pixels, z nearness (greater is nearer the viewer,
/// linear across the picture).
class Canvas {
public:
    Canvas(int width, int height, std::uint8_t ground);

    int width() const { return columns; }
    int height() const { return rows; }
    std::uint8_t at(int x, int y) const { return shades[index(x, y)]; }

    void triangle(Vec3 a, Vec3 b, Vec3 c, std::uint8_t shade);
    /// A line one pixel wide, or a square brush of `brush` pixels; it wins over faces less than `lift` nearer.
    void line(Vec3 a, Vec3 b, std::uint8_t shade, double lift, int brush);
    /// Letters of 5 by 7 dots, each dot `dot` pixels square, upper left corner at (x, y). Only printable ASCII.
    void text(int x, int y, std::string const& letters, int dot, std::uint8_t shade);
    static int text_width(std::string const& letters, int dot) { return static_cast<int>(letters.size()) * 6 * dot; }

    /// The picture at 1/factor of its size, averaged.
    Canvas shrunk(int factor) const;
    /// Copies `other` in with its upper left corner at (x, y); what falls outside is cut.
    void paste(Canvas const& other, int x, int y);
    /// Writes a PNG. Returns false when that fails.
    bool save(std::string const& path) const;

private:
    std::size_t index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(columns) + static_cast<std::size_t>(x);
    }
    void put(int x, int y, double z, std::uint8_t shade);

    int columns, rows;
    std::vector<std::uint8_t> shades;
    std::vector<double> depth;
};

} // namespace asc
