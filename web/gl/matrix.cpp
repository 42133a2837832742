// SPDX-License-Identifier: MIT
#include "web/gl/matrix.h"

#include <cmath>
#include <cstdint>
#include <cstring>

namespace fixedgl {

namespace {

constexpr double degree = 3.14159265358979323846 / 180;

struct Turn {
    float angle; ///< degrees
    float sine;
    float cosine;
};

/// Grids of one shape turn by the same few angles again and again; the last ones are kept.
Turn const& turn_by(float angle) {
    static Turn kept[16] = {{0, 0, 1}};
    std::uint32_t bits = 0;
    std::memcpy(&bits, &angle, sizeof bits);
    Turn& turn = kept[bits * 2654435769u >> 28];
    if (turn.angle != angle) {
        auto const radians = static_cast<float>(angle * degree);
        turn = {angle, std::sin(radians), std::cos(radians)};
    }
    return turn;
}

/// Turns within the plane of two axes: the first towards the second, for a positive sine.
void turn_in_plane(Four& first, Four& second, float sine, float cosine) {
    Four const was = first;
    first = was * cosine + second * sine;
    second = was * -sine + second * cosine;
}

Four cross(Four a, Four b) {
    return Four{a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0], 0};
}

Four normal(Four v) {
    float const length = std::sqrt(v[0] * v[0] + v[1] * v[1] + v[2] * v[2]);
    return length == 0 ? v : v / length;
}

} // namespace

void rotate(Matrix& m, float angle, float x, float y, float z) {
    if (angle == 0) return;
    Turn const& turn = turn_by(angle);
    float const s = turn.sine;
    float const c = turn.cosine;
    if (y == 0 && z == 0) {
        if (x != 0) turn_in_plane(m.column[1], m.column[2], x > 0 ? s : -s, c);
    } else if (x == 0 && z == 0) {
        turn_in_plane(m.column[2], m.column[0], y > 0 ? s : -s, c);
    } else if (x == 0 && y == 0) {
        turn_in_plane(m.column[0], m.column[1], z > 0 ? s : -s, c);
    } else {
        Four const a = normal(Four{x, y, z, 0});
        float const d = 1 - c;
        Four const b = a * s;
        m = multiply(m, {{Four{d * (a[0] * a[0]) + c, d * (a[0] * a[1]) + b[2], d * (a[2] * a[0]) - b[1], 0},
                          Four{d * (a[0] * a[1]) - b[2], d * (a[1] * a[1]) + c, d * (a[1] * a[2]) + b[0], 0},
                          Four{d * (a[2] * a[0]) + b[1], d * (a[1] * a[2]) - b[0], d * (a[2] * a[2]) + c, 0},
                          Four{0, 0, 0, 1}}});
    }
}

Matrix frustum(float left, float right, float bottom, float top, float near_plane, float far_plane) {
    float const width = right - left;
    float const height = top - bottom;
    float const depth = far_plane - near_plane;
    return {{Four{2 * near_plane / width, 0, 0, 0}, Four{0, 2 * near_plane / height, 0, 0},
             Four{(right + left) / width, (top + bottom) / height, -(far_plane + near_plane) / depth, -1},
             Four{0, 0, -(2 * far_plane * near_plane) / depth, 0}}};
}

Matrix look_along(Four forward, Four up) {
    Four const f = normal(forward);
    Four const s = normal(cross(f, up));
    Four const u = cross(s, f);
    return {{Four{s[0], u[0], -f[0], 0}, Four{s[1], u[1], -f[1], 0}, Four{s[2], u[2], -f[2], 0}, Four{0, 0, 0, 1}}};
}

} // namespace fixedgl
