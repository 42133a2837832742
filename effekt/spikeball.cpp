// SPDX-License-Identifier: MIT
#include "effekt/spikeball.h"

#include "effekt/cubelist.h"

namespace effect {

SpikeBall::SpikeBall() : myCube(compile_cube()) {}

void SpikeBall::InternalDraw() {
    drawColor();
    glCallList(myCube);
}

} // namespace effect
