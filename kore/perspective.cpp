// SPDX-License-Identifier: MIT
#include "kore/perspective.h"

#include <GL/gl.h>
#include <cmath>

namespace kore {

void setPerspective(double fovy, double aspect, double zNear, double zFar) {
    double const h = std::tan(PI * fovy / 360.0) * zNear;
    glFrustum(-h * aspect, h * aspect, -h, h, zNear, zFar);
}

} // namespace kore
