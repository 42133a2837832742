// SPDX-License-Identifier: MIT
#include "web/gl/batch.h"

#include <algorithm>
#include <cstring>

namespace fixedgl {

namespace {

void write(float (&to)[4], Four from) { std::memcpy(to, &from, sizeof to); }

} // namespace

std::size_t elements_of(GLenum mode, std::size_t corners) {
    switch (mode) {
    case GL_LINES:
        return corners / 2;
    case GL_TRIANGLES:
        return corners / 3;
    case GL_QUADS:
        return corners / 4;
    case GL_POLYGON:
        return corners < 3 ? 0 : corners - 2;
    default:
        return 0;
    }
}

std::size_t Batch::Put(GLenum mode, std::span<Corner const> corners, std::size_t from, Matrix const& place,
                       Color const* color) {
    std::size_t const room = std::min((vertices.size() - used_vertices) / 4, (indices.size() - used_indices) / 6);
    std::size_t const end = std::min(elements_of(mode, corners.size()), from + room);
    Vertex* v = vertices.data() + used_vertices;
    GLuint* i = indices.data() + used_indices;
    auto first = static_cast<GLuint>(used_vertices);

    auto const corner = [&](std::size_t which, Vertex& to) {
        Corner const& c = corners[which];
        write(to.at, transform(place, c.x, c.y, c.z));
        to.color = color ? *color : c.color;
        to.side = 0;
    };
    auto const triangle = [&](std::size_t a, std::size_t b, std::size_t c) {
        corner(a, v[0]);
        corner(b, v[1]);
        corner(c, v[2]);
        for (GLuint const k : {0u, 1u, 2u}) *i++ = first + k;
        v += 3;
        first += 3;
    };
    auto const quad = [&](std::size_t a) {
        for (std::size_t k = 0; k < 4; ++k) corner(a + k, v[k]);
        for (GLuint const k : {0u, 1u, 3u, 1u, 2u, 3u}) *i++ = first + k;
        v += 4;
        first += 4;
    };
    auto const line = [&](std::size_t a) {
        corner(a, v[0]);
        corner(a + 1, v[1]);
        for (GLuint const k : {0u, 1u}) *i++ = first + k;
        v += 2;
        first += 2;
    };
    auto const rectangle = [&](std::size_t a) {
        corner(a, v[0]);
        corner(a + 1, v[2]);
        v[1] = v[0];
        v[3] = v[2];
        for (int k = 0; k < 4; ++k) {
            std::memcpy(v[k].to, v[k < 2 ? 2 : 0].at, sizeof v[k].to);
            v[k].side = k == 0 || k == 3 ? 1.0f : -1.0f;
        }
        for (GLuint const k : {0u, 1u, 2u, 1u, 3u, 2u}) *i++ = first + k;
        v += 4;
        first += 4;
    };

    switch (mode) {
    case GL_LINES:
        if (lines == Lines::Driver) {
            for (; from < end; ++from) line(2 * from);
        } else {
            for (; from < end; ++from) rectangle(2 * from);
        }
        break;
    case GL_TRIANGLES:
        for (; from < end; ++from) triangle(3 * from, 3 * from + 1, 3 * from + 2);
        break;
    case GL_QUADS:
        for (; from < end; ++from) quad(4 * from);
        break;
    default:
        for (; from < end; ++from) triangle(from + 1, from + 2, 0);
        break;
    }
    used_vertices = static_cast<std::size_t>(v - vertices.data());
    auto const used = static_cast<std::size_t>(i - indices.data());
    if (used > used_indices) {
        AddRun(mode == GL_LINES && lines == Lines::Driver ? GL_LINES : GL_TRIANGLES, used - used_indices);
    }
    used_indices = used;
    return from;
}

} // namespace fixedgl
