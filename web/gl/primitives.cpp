// SPDX-License-Identifier: MIT
// Primitives, colours and display lists.

#include "web/gl/fixedgl.h"
#include "web/gl/state.h"

#include <algorithm>

namespace fixedgl {

namespace {

constexpr std::size_t most_names = 1u << 24;

constexpr bool is_primitive(GLenum mode) {
    return mode == GL_LINES || mode == GL_TRIANGLES || mode == GL_QUADS || mode == GL_POLYGON;
}

Color channel(float value) {
    // Written so that what is not a number becomes 0.
    float const shown = value > 0 ? std::min(value, 1.0f) : 0.0f;
    constexpr float half = 0.5f;
    return static_cast<Color>(shown * 255 + half);
}

/// Between glBegin and glEnd vertices go straight to their place; elsewhere they take the long way.
void open_corners(bool open) {
    state.next = open ? state.corners.data() : nullptr;
    state.end = open ? state.corners.data() + state.corners.size() : nullptr;
    state.busy = state.inside = open;
}

void grow() {
    std::size_t const used = state.corners.size();
    state.corners.resize(2 * used);
    state.next = state.corners.data() + used;
    state.end = state.corners.data() + state.corners.size();
}

/// The vertex that finds no room: it is compiled, dropped outside a primitive, or makes room.
[[gnu::noinline]] void long_way(float x, float y, float z) {
    if (state.compiler) return state.compiler->Vertex(x, y, z);
    if (!state.inside) return;
    grow();
    *state.next++ = {x, y, z, state.color};
}

List* find(GLuint name) { return name != 0 && name < state.lists.size() ? &state.lists[name] : nullptr; }

void erase(List& list) {
    for (Primitive const& primitive : list.primitives) {
        if (!primitive.mesh.array) continue;
        state.shelf.Put(primitive.mode, {list.corners.data() + primitive.first, primitive.count}, primitive.mesh);
    }
    list = {};
}

void set_color(float r, float g, float b, float a) {
    state.color = channel(r) | channel(g) << 8 | channel(b) << 16 | channel(a) << 24;
}

} // namespace

} // namespace fixedgl

using namespace fixedgl;

extern "C" {

void glBegin(GLenum mode) {
    if (state.busy || !is_primitive(mode)) [[unlikely]] {
        if (state.compiler && is_primitive(mode)) return state.compiler->Begin(mode);
        if (settled<glBegin>(mode)) return;
        return raise(GL_INVALID_ENUM);
    }
    open_corners(true);
    state.mode = mode;
}

void glEnd() {
    if (state.compiler) [[unlikely]]
        return state.compiler->End();
    if (!state.inside) return raise(GL_INVALID_OPERATION);
    auto const count = static_cast<std::size_t>(state.next - state.corners.data());
    open_corners(false);
    state.drawing.Put(state.mode, {state.corners.data(), count}, state.Place(), nullptr);
}

void glVertex3f(GLfloat x, GLfloat y, GLfloat z) {
    if (state.next == state.end) [[unlikely]]
        return long_way(x, y, z);
    *state.next++ = {x, y, z, state.color};
}

void glVertex3fv(GLfloat const* v) { glVertex3f(v[0], v[1], v[2]); }

void glColor4f(GLfloat r, GLfloat g, GLfloat b, GLfloat a) {
    if (state.compiler) [[unlikely]]
        return state.compiler->Add(command<glColor4f>(r, g, b, a), true);
    set_color(r, g, b, a);
}

void glColor3f(GLfloat r, GLfloat g, GLfloat b) { glColor4f(r, g, b, 1); }
void glColor3fv(GLfloat const* v) { glColor4f(v[0], v[1], v[2], 1); }

GLuint glGenLists(GLsizei range) {
    if (refused()) return 0;
    if (range < 0) raise(GL_INVALID_VALUE);
    if (range <= 0) return 0;
    // The names behind the last one in use are free, and stand together.
    std::size_t const first = std::max<std::size_t>(1, state.lists.size());
    if (first + static_cast<std::size_t>(range) > most_names) {
        raise(GL_OUT_OF_MEMORY);
        return 0;
    }
    state.lists.resize(first + static_cast<std::size_t>(range));
    for (std::size_t i = first; i < state.lists.size(); ++i) state.lists[i].reserved = true;
    return static_cast<GLuint>(first);
}

void glDeleteLists(GLuint first, GLsizei range) {
    if (refused()) return;
    if (range < 0) return raise(GL_INVALID_VALUE);
    std::size_t const end = std::min(state.lists.size(), std::size_t{first} + static_cast<std::size_t>(range));
    for (std::size_t i = first; i < end; ++i) erase(state.lists[i]);
    // So that glGenLists finds the names again.
    while (!state.lists.empty() && !state.lists.back().reserved) state.lists.pop_back();
}

GLboolean glIsList(GLuint list) {
    if (refused()) return GL_FALSE;
    List const* const found = find(list);
    return found && found->reserved ? GL_TRUE : GL_FALSE;
}

void glNewList(GLuint list, GLenum mode) {
    if (refused()) return;
    if (list == 0) return raise(GL_INVALID_VALUE);
    if (mode != GL_COMPILE) return raise(GL_INVALID_ENUM);
    if (state.compiler) return raise(GL_INVALID_OPERATION);
    if (list >= most_names) return raise(GL_OUT_OF_MEMORY);
    if (list >= state.lists.size()) state.lists.resize(std::size_t{list} + 1);
    state.compiler = &state.the_compiler;
    state.compiling = list;
    state.busy = true;
}

void glEndList() {
    if (!state.compiler) return raise(GL_INVALID_OPERATION);
    List& list = state.lists[state.compiling];
    erase(list);
    list = state.compiler->Finish();
    list.reserved = true;
    state.compiler = nullptr;
    state.busy = false;
}

void glCallList(GLuint list) {
    if (state.compiler) [[unlikely]]
        return state.compiler->Add(command<glCallList>(list), true);
    if (list == 0) return raise(GL_INVALID_VALUE);
    List const* const found = find(list);
    if (!found || state.nesting == nesting_limit) return;
    ++state.nesting;
    found->Replay();
    --state.nesting;
}

} // extern "C"
