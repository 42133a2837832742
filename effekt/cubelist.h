// SPDX-License-Identifier: MIT
#pragma once

namespace effect {

/// Compiles a display list of a cube of edge 1 about the origin, as six quads; needs a current OpenGL context.
/// @return the list's name
unsigned int compile_cube();

} // namespace effect
