#include "kore/camera.h"

#include <GL/gl.h>
#include <GL/glu.h>

namespace effect {

void Camera::InternalDraw() {
    kore::Vector3<float> const& eye = GetPos();
    gluLookAt(eye.x, eye.y, eye.z, look.x, look.y, look.z, 0, 1, 0);
}

void Camera::DebugCam() {
    constexpr float far = -1.1f;
    constexpr float near = -0.1f;
    // The six sides of the box, and a slice through its middle.
    // clang-format off
    constexpr float quads[7][4][3] = {
        {{-0.5f, -0.5f, near},  {-0.5f, 0.5f, near},  {0.5f, 0.5f, near},  {0.5f, -0.5f, near}},
        {{-0.5f, -0.5f, far},   {-0.5f, 0.5f, far},   {0.5f, 0.5f, far},   {0.5f, -0.5f, far}},
        {{-0.5f, -0.5f, near},  {-0.5f, 0.5f, near},  {-0.5f, 0.5f, far},  {-0.5f, -0.5f, far}},
        {{0.5f, -0.5f, near},   {0.5f, 0.5f, near},   {0.5f, 0.5f, far},   {0.5f, -0.5f, far}},
        {{-0.5f, -0.5f, near},  {0.5f, -0.5f, near},  {0.5f, -0.5f, far},  {-0.5f, -0.5f, far}},
        {{-0.5f, 0.5f, near},   {0.5f, 0.5f, near},   {0.5f, 0.5f, far},   {-0.5f, 0.5f, far}},
        {{-0.5f, -0.5f, -0.6f}, {-0.5f, 0.5f, -0.6f}, {0.5f, 0.5f, -0.6f}, {0.5f, -0.5f, -0.6f}},
    };
    // clang-format on
    constexpr float red[3] = {1, 0, 0};

    glColor3fv(red);
    glBegin(GL_QUADS);
    for (auto const& quad : quads) {
        for (auto const& corner : quad) glVertex3fv(corner);
    }
    glEnd();
}

} // namespace effect
