// SPDX-License-Identifier: MIT
#include "runtime/frame.h"

#include "kore/frustum.h"
#include "kore/perspective.h"

#include <GL/gl.h>

void init_gl() {
    glEnable(GL_TEXTURE_2D);
    glClearDepth(1.0);
    glClearColor(0, 0, 0, 0);
    glDepthMask(GL_TRUE);
    glEnable(GL_DEPTH_TEST);
    glHint(GL_PERSPECTIVE_CORRECTION_HINT, GL_NICEST);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    glEnable(GL_BLEND);
    glDisable(GL_CULL_FACE);
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    kore::setPerspective(kore::frustum::field_of_view, kore::frustum::aspect, kore::frustum::near_plane,
                         kore::frustum::far_plane);
    glEnable(GL_COLOR_MATERIAL);
    glShadeModel(GL_SMOOTH);
    glMatrixMode(GL_MODELVIEW);
}

void draw_frame(kore::Demo& demo, DebugCamera const& view) {
    glLoadIdentity();
    if (view.IsFree()) view.Apply();
    demo.Draw(!view.IsFree());
}
