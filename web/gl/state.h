// SPDX-License-Identifier: MIT
#pragma once

#include "web/gl/lists.h"
#include "web/gl/shelf.h"

#include <array>

/// The state that the entry points share. Not for users of the layer.
namespace fixedgl {

constexpr std::size_t stack_limit = 32;     // matrices
constexpr std::size_t attribute_limit = 16; // entries
constexpr int nesting_limit = 64;           // lists within lists

/// A stack of matrices; the current one is on top.
struct MatrixStack {
    Matrix matrices[stack_limit];
    std::size_t top = 0;

    Matrix& Top() { return matrices[top]; }
};

/// What glPushAttrib keeps.
struct Attributes {
    GLbitfield groups = 0;
    bool blend = false;
    bool scissor = false;
    std::array<GLenum, 2> blend_factors{GL_ONE, GL_ZERO};
    std::array<float, 4> clear_color{};
    std::array<GLint, 4> box{}; ///< of the scissors
};

struct State {
    // What every vertex touches comes first.
    Corner* next = nullptr; ///< place of the next vertex
    Corner* end = nullptr;  ///< equal to it where a vertex takes the long way: no room, or no primitive
    Color color = ~Color{0};
    bool busy = false; ///< between glBegin and glEnd, or compiling: most calls take the long way

    bool inside = false; ///< between glBegin and glEnd
    GLenum mode = 0;     ///< of the primitive
    std::vector<Corner> corners;

    MatrixStack model_view;
    MatrixStack projection;
    MatrixStack* stack = nullptr; ///< the one that the matrix mode says
    Matrix place = identity;      ///< projection times model-view, unless moved
    bool moved = false;

    std::vector<List> lists; ///< by name; 0 is none
    Compiler the_compiler;
    Compiler* compiler = nullptr; ///< null while no list is compiled
    GLuint compiling = 0;         ///< name of the list
    int nesting = 0;
    Shelf shelf;

    Attributes attributes;
    std::vector<Attributes> attribute_stack;
    GLenum error = GL_NO_ERROR;
    Drawing drawing;

    Matrix const& Place() {
        if (moved) place = multiply(projection.Top(), model_view.Top());
        moved = false;
        return place;
    }
};

extern State state;

inline void raise(GLenum error) {
    if (state.error == GL_NO_ERROR) state.error = error;
}

/// For calls that are refused between glBegin and glEnd and not compiled.
/// @return whether it is refused now
inline bool refused() {
    if (state.inside) raise(GL_INVALID_OPERATION);
    return state.inside;
}

/// For calls that are refused between glBegin and glEnd, and compiled.
/// @return whether that settles it
template<auto call, typename... Arguments>
inline bool settled(Arguments... arguments) {
    if (!state.busy) [[likely]]
        return false;
    if (!state.compiler) return refused();
    state.compiler->Add(command<call>(arguments...), false);
    return true;
}

/// Switches texturing on or off, as GL_TEXTURE_2D does; see textures.cpp.
void set_texturing(bool on);
void delete_textures();
void forget_textures();

} // namespace fixedgl
