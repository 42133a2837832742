// SPDX-License-Identifier: MIT
#pragma once

#include "web/gl/driver.h"

/// A driver for the layer whose entry points do nothing, but for counting.
namespace nodriver {

inline long draw_calls = 0;

template<typename Result, typename... Arguments>
Result nothing(Arguments...) {
    return Result();
}

template<typename Result, typename... Arguments>
void leave_out(Result (*&entry)(Arguments...)) {
    entry = nothing<Result, Arguments...>;
}

inline fixedgl::Driver make() {
    fixedgl::Driver driver{};
#define NODRIVER_LEAVE_OUT(name) leave_out(driver.name);
    FIXEDGL_DRIVER_CALLS(NODRIVER_LEAVE_OUT)
#undef NODRIVER_LEAVE_OUT
    driver.GetProgramiv = [](GLuint, GLenum, GLint* value) { *value = GL_TRUE; };
    driver.GenVertexArrays = [](GLsizei, GLuint* names) { *names = 1; };
    driver.DrawElements = [](GLenum, GLsizei, GLenum, void const*) { ++draw_calls; };
    return driver;
}

} // namespace nodriver
