// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/glrecorder.h"

#include <GL/gl.h>
#include <map>
#include <string_view>

/// The stand-in's state, shared by its units.
namespace gl::detail {

constexpr std::size_t stack_limit_model_view = 32; // the least that the standard guarantees
constexpr std::size_t stack_limit_projection = 2;

constexpr std::uint64_t empty_sum = 14695981039346656037ULL; // the offset basis of FNV-1a

struct List {
    std::vector<std::string> calls; ///< as text (Logging::Text only)
    std::vector<bool> brackets;     ///< its glBegin (true) and glEnd (false) calls, in order
    std::uint64_t sum = empty_sum;  ///< of its calls
};

struct State {
    Logging logging = Logging::Text;
    std::vector<std::string> log;
    std::vector<Draw> drawn;
    std::vector<std::string> raised;
    std::uint64_t count = 0;
    std::uint64_t sum = 0;

    GLenum mode = GL_MODELVIEW;
    std::vector<Matrix> model_view;
    std::vector<Matrix> projection;
    std::array<float, 4> color{1, 1, 1, 1};
    bool in_primitive = false;

    std::map<unsigned int, List> lists;
    std::map<unsigned int, std::string> names;
    unsigned int next_list = 1;
    unsigned int compiling = 0; ///< list under compilation; 0 for none

    std::vector<Matrix>& Stack() { return mode == GL_PROJECTION ? projection : model_view; }
};

State& state();

/// Logs one call, in the list under compilation if there is one.
/// @param sum  for a call that names a list: the checksum of the list's content, used instead of the arguments
/// @return whether to execute it now
bool note(std::string_view name, std::initializer_list<double> numbers = {}, std::string_view words = {},
          std::uint64_t const* sum = nullptr);

void raise(char const* error, std::string_view call);

Matrix multiply(Matrix const& a, Matrix const& b);
Matrix identity();

/// The name of an enumerant: "GL_QUADS" gives "QUADS".
std::string_view word(GLenum value, bool primitive = false);

} // namespace gl::detail
