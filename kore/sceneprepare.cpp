// SPDX-License-Identifier: MIT
#include "kore/sceneprepare.h"

#include <GL/gl.h>

namespace kore {

void ScenePrepare::Draw() {
    glClearColor(clear_color.red, clear_color.green, clear_color.blue, clear_color.alpha);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
}

} // namespace kore
