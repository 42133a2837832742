// SPDX-License-Identifier: MIT
#include "effekt/simplecube.h"

#include "effekt/cubelist.h"

#include <GL/gl.h>

namespace effect {

SimpleCube::SimpleCube() : myCube(compile_cube()) {}

void SimpleCube::InternalDraw() { glCallList(myCube); }

} // namespace effect
