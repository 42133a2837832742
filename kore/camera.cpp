// SPDX-License-Identifier: MIT
#include "kore/camera.h"

#include <GL/gl.h>
#include <GL/glu.h>

namespace effect {

void Camera::InternalDraw() {
    kore::Vector3<float> const& eye = GetPos();
    gluLookAt(eye.x, eye.y, eye.z, look.x, look.y, look.z, 0, 1, 0);
}

void Camera::DebugCam() {
    constexpr float corners[8][3] = {
        {-0.5f, -0.5f, -0.1f}, {0.5f, -0.5f, -0.1f}, {0.5f, 0.5f, -0.1f}, {-0.5f, 0.5f, -0.1f},
        {-0.5f, -0.5f, -1.1f}, {0.5f, -0.5f, -1.1f}, {0.5f, 0.5f, -1.1f}, {-0.5f, 0.5f, -1.1f},
    };
    // The six sides, the near one twice.
    constexpr int quads[7][4] = {{0, 1, 2, 3}, {4, 5, 6, 7}, {0, 1, 5, 4}, {2, 3, 7, 6},
                                 {0, 3, 7, 4}, {1, 2, 6, 5}, {0, 1, 2, 3}};
    constexpr float red[3] = {1, 0, 0};

    glColor3fv(red);
    glBegin(GL_QUADS);
    for (auto const& quad : quads) {
        for (int const corner : quad) glVertex3fv(corners[corner]);
    }
    glEnd();
}

} // namespace effect
