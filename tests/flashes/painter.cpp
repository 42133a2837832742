// SPDX-License-Identifier: MIT
#include "tests/flashes/painter.h"

#include <GL/gl.h>
#include <GL/glu.h>
#include <array>
#include <cmath>
#include <map>
#include <numbers>
#include <stdexcept>
#include <string>
#include <unordered_map>
#include <vector>

namespace {

using flashes::Clip;
using Corner = flashes::Canvas::Corner;
using Matrix = std::array<float, 16>; // column by column

struct Vertex {
    float x, y, z;
};

/// Puts triangles and lines together from the corners between glBegin and glEnd. The end draws nothing more.
template<class T>
class Assembly {
public:
    void Begin(GLenum primitive_) {
        if (primitive_ != GL_LINES && primitive_ != GL_TRIANGLES && primitive_ != GL_QUADS &&
            primitive_ != GL_POLYGON) {
            throw std::logic_error("the painter cannot draw primitive " + std::to_string(primitive_));
        }
        primitive = primitive_;
        count = 0;
    }

    /// @param draw  called with two corners for a line, with three for a triangle
    template<class Draw>
    void Add(T const& next, Draw const& draw) {
        c[count++] = next;
        if (primitive == GL_LINES && count == 2) {
            draw(c[0], c[1]);
            count = 0;
        } else if (primitive == GL_TRIANGLES && count == 3) {
            draw(c[0], c[1], c[2]);
            count = 0;
        } else if (primitive == GL_QUADS && count == 4) {
            draw(c[0], c[1], c[2]);
            draw(c[0], c[2], c[3]);
            count = 0;
        } else if (primitive == GL_POLYGON && count == 3) {
            draw(c[0], c[1], c[2]);
            c[1] = c[2];
            count = 2;
        }
    }

private:
    GLenum primitive = GL_LINES;
    std::array<T, 4> c{}; // of a polygon the first and the last two
    std::size_t count = 0;
};

/// A display list, with each vertex but once however many triangles and lines share it.
class List {
public:
    struct Shape {
        std::array<std::size_t, 3> corners; // indices of vertices
        bool is_line;
    };

    void Begin(GLenum primitive) { assembly.Begin(primitive); }
    void Add(Vertex const& v) {
        auto const [place, is_new] = indices.try_emplace({v.x, v.y, v.z}, vertices.size());
        if (is_new) vertices.push_back(v);
        assembly.Add(place->second, [this](auto... corners) {
            shapes.push_back({{corners...}, sizeof...(corners) == 2});
        });
    }

    std::vector<Vertex> const& Vertices() const { return vertices; }
    std::vector<Shape> const& Shapes() const { return shapes; }

private:
    std::vector<Vertex> vertices;
    std::vector<Shape> shapes;
    std::map<std::array<float, 3>, std::size_t> indices;
    Assembly<std::size_t> assembly;
};

constexpr Matrix identity = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

struct State {
    flashes::Canvas canvas{1, 1};
    std::vector<Matrix> model_view{identity};
    std::vector<Matrix> projection{identity};
    bool in_projection = false;
    Matrix combined{};
    bool is_combined = false;
    float color = 1;
    float clear_level = 0;
    bool saw_colour = false;
    Assembly<Corner> assembly; // of what is in no list
    std::unordered_map<GLuint, List> lists;
    GLuint next_list = 1;
    List* compiling = nullptr;
    std::vector<Corner> placed; // the vertices of a list that is called

    std::vector<Matrix>& Stack() { return in_projection ? projection : model_view; }
};

State state;

Matrix multiply(Matrix const& a, Matrix const& b) {
    Matrix product{};
    for (std::size_t column = 0; column < 4; ++column) {
        for (std::size_t k = 0; k < 4; ++k) {
            float const f = b[column * 4 + k];
            for (std::size_t row = 0; row < 4; ++row) product[column * 4 + row] += a[k * 4 + row] * f;
        }
    }
    return product;
}

void multiply_top(Matrix const& m) {
    Matrix& top = state.Stack().back();
    top = multiply(top, m);
    state.is_combined = false;
}

Corner transform(Vertex const& v) {
    if (!state.is_combined) {
        state.combined = multiply(state.projection.back(), state.model_view.back());
        state.is_combined = true;
    }
    Matrix const& m = state.combined;
    auto const row = [&](std::size_t r) { return m[r] * v.x + m[4 + r] * v.y + m[8 + r] * v.z + m[12 + r]; };
    return state.canvas.Place({row(0), row(1), row(2), row(3)});
}

void draw(Corner const& a, Corner const& b) { state.canvas.Line(a, b, state.color); }
void draw(Corner const& a, Corner const& b, Corner const& c) { state.canvas.Triangle(a, b, c, state.color); }

struct Direction {
    double x, y, z;
};

Direction normal(Direction v) {
    double const length = std::hypot(v.x, v.y, v.z);
    return length == 0 ? v : Direction{v.x / length, v.y / length, v.z / length};
}

Direction cross(Direction a, Direction b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

void note_colour(float red, float green, float blue) {
    if (red != green || green != blue || red < 0 || red > 1) state.saw_colour = true;
}

} // namespace

namespace painter {

void reset(int width, int height) {
    state = State();
    state.canvas = flashes::Canvas(width, height);
}

flashes::Canvas const& canvas() { return state.canvas; }

bool saw_colour() { return state.saw_colour; }

} // namespace painter

extern "C" {

void glBegin(GLenum primitive) {
    if (state.compiling) {
        state.compiling->Begin(primitive);
    } else {
        state.assembly.Begin(primitive);
    }
}

void glVertex3f(GLfloat x, GLfloat y, GLfloat z) {
    if (state.compiling) {
        state.compiling->Add({x, y, z});
    } else {
        state.assembly.Add(transform({x, y, z}), [](auto const&... corners) { draw(corners...); });
    }
}

void glVertex3fv(GLfloat const* v) { glVertex3f(v[0], v[1], v[2]); }

void glEnd() {}

GLuint glGenLists(GLsizei range) {
    GLuint const first = state.next_list;
    state.next_list += static_cast<GLuint>(range);
    return first;
}

void glNewList(GLuint list, GLenum) {
    state.compiling = &state.lists[list];
    *state.compiling = {};
}

void glEndList() { state.compiling = nullptr; }

void glCallList(GLuint list) {
    auto const found = state.lists.find(list);
    if (found == state.lists.end()) return;
    std::vector<Corner>& placed = state.placed;
    placed.clear();
    for (Vertex const& v : found->second.Vertices()) placed.push_back(transform(v));
    for (auto const& [corners, is_line] : found->second.Shapes()) {
        if (is_line) {
            draw(placed[corners[0]], placed[corners[1]]);
        } else {
            draw(placed[corners[0]], placed[corners[1]], placed[corners[2]]);
        }
    }
}

void glColor3f(GLfloat red, GLfloat green, GLfloat blue) {
    note_colour(red, green, blue);
    state.color = red;
}

void glColor3fv(GLfloat const* c) { glColor3f(c[0], c[1], c[2]); }

void glColor4f(GLfloat red, GLfloat green, GLfloat blue, GLfloat) { glColor3f(red, green, blue); }

void glClearColor(GLclampf red, GLclampf green, GLclampf blue, GLclampf) {
    note_colour(red, green, blue);
    state.clear_level = red;
}

void glClear(GLbitfield) { state.canvas.Clear(state.clear_level); }

void glMatrixMode(GLenum mode) { state.in_projection = mode == GL_PROJECTION; }

void glLoadIdentity() {
    state.Stack().back() = identity;
    state.is_combined = false;
}

void glPushMatrix() { state.Stack().push_back(Matrix(state.Stack().back())); }

void glPopMatrix() {
    if (state.Stack().size() > 1) state.Stack().pop_back(); // like OpenGL, which refuses to take the last one
    state.is_combined = false;
}

void glTranslatef(GLfloat x, GLfloat y, GLfloat z) { multiply_top({1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, x, y, z, 1}); }

void glScalef(GLfloat x, GLfloat y, GLfloat z) { multiply_top({x, 0, 0, 0, 0, y, 0, 0, 0, 0, z, 0, 0, 0, 0, 1}); }

void glRotatef(GLfloat degrees, GLfloat ax, GLfloat ay, GLfloat az) {
    auto const [nx, ny, nz] = normal({ax, ay, az});
    auto const x = static_cast<float>(nx);
    auto const y = static_cast<float>(ny);
    auto const z = static_cast<float>(nz);
    float const angle = degrees * std::numbers::pi_v<float> / 180;
    float const c = std::cos(angle);
    float const s = std::sin(angle);
    float const d = 1 - c;
    multiply_top({x * x * d + c, y * x * d + z * s, x * z * d - y * s, 0, x * y * d - z * s, y * y * d + c,
                  y * z * d + x * s, 0, x * z * d + y * s, y * z * d - x * s, z * z * d + c, 0, 0, 0, 0, 1});
}

void glFrustum(GLdouble l, GLdouble r, GLdouble b, GLdouble t, GLdouble n, GLdouble f) {
    auto const number = [](double d) { return static_cast<float>(d); };
    multiply_top({number(2 * n / (r - l)), 0, 0, 0, 0, number(2 * n / (t - b)), 0, 0, number((r + l) / (r - l)),
                  number((t + b) / (t - b)), number(-(f + n) / (f - n)), -1, 0, 0, number(-2 * f * n / (f - n)), 0});
}

void gluLookAt(GLdouble ex, GLdouble ey, GLdouble ez, GLdouble cx, GLdouble cy, GLdouble cz, GLdouble ux, GLdouble uy,
               GLdouble uz) {
    Direction const f = normal({cx - ex, cy - ey, cz - ez});
    Direction const s = normal(cross(f, {ux, uy, uz}));
    Direction const u = cross(s, f);
    auto const number = [](double d) { return static_cast<float>(d); };
    multiply_top({number(s.x), number(u.x), number(-f.x), 0, number(s.y), number(u.y), number(-f.y), 0, number(s.z),
                  number(u.z), number(-f.z), 0, 0, 0, 0, 1});
    glTranslatef(number(-ex), number(-ey), number(-ez));
}

} // extern "C"
