// SPDX-License-Identifier: MIT
#pragma once

namespace kore {

/// Three components x, y, z, held as an array in that order. Positions are units of the scene, angles degrees.
template<typename T>
class Vector3 {
public:
    Vector3(T x_, T y_, T z_) : x(x_), y(y_), z(z_) {}

    Vector3& operator+=(Vector3 const& other) {
        x += other.x;
        y += other.y;
        z += other.z;
        return *this;
    }
    Vector3& operator-=(Vector3 const& other) {
        x -= other.x;
        y -= other.y;
        z -= other.z;
        return *this;
    }
    Vector3 operator+(Vector3 const& other) const { return Vector3(*this) += other; }
    Vector3 operator-(Vector3 const& other) const { return Vector3(*this) -= other; }
    Vector3 operator*(T const& s) const { return {x * s, y * s, z * s}; }

    T x;
    T y;
    T z;
};

} // namespace kore
