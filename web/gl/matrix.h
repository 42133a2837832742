// SPDX-License-Identifier: MIT
#pragma once

namespace fixedgl {

/// Four floats that are computed with at once.
using Four [[gnu::vector_size(16)]] = float;

/// Columns, as OpenGL has them: a point p becomes column[0] p.x + column[1] p.y + column[2] p.z + column[3] p.w. All of
/// it is computed in float and in this order.
struct Matrix {
    Four column[4];
};

inline constexpr Matrix identity{{Four{1, 0, 0, 0}, Four{0, 1, 0, 0}, Four{0, 0, 1, 0}, Four{0, 0, 0, 1}}};

inline Four transform(Matrix const& m, Four p) {
    return m.column[0] * p[0] + m.column[1] * p[1] + m.column[2] * p[2] + m.column[3] * p[3];
}

/// The point (x, y, z, 1).
inline Four transform(Matrix const& m, float x, float y, float z) {
    return m.column[0] * x + m.column[1] * y + m.column[2] * z + m.column[3];
}

inline Matrix multiply(Matrix const& a, Matrix const& b) {
    return {
        {transform(a, b.column[0]), transform(a, b.column[1]), transform(a, b.column[2]), transform(a, b.column[3])}};
}

/// Multiplies a rotation onto a matrix: OpenGL 1.1, section 2.10.2. Turns about an axis of the coordinates are exact in
/// what they leave alone; no angle, or no axis, turns nothing.
/// @param angle    degrees, counterclockwise as seen against the axis
/// @param x, y, z  the axis, of any length
void rotate(Matrix& m, float angle, float x, float y, float z);

/// OpenGL 1.1, section 2.10.2; all six in float.
Matrix frustum(float left, float right, float bottom, float top, float near_plane, float far_plane);

/// The turning part of gluLookAt (GLU 1.2, section 4.1): moving the eye to the origin is what remains to be done.
/// @param forward  from the eye to the point that it looks at, of any length above 0
/// @param up       of any length above 0, and not along forward
Matrix look_along(Four forward, Four up);

} // namespace fixedgl
