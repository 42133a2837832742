// SPDX-License-Identifier: MIT
#include "kore/entity.h"

#include <GL/gl.h>

namespace kore {

void Entity::Draw() {
    glPushMatrix();
    glTranslatef(position.x, position.y, position.z);
    glPushMatrix();
    glRotatef(rotation.x, 1, 0, 0);
    glRotatef(rotation.y, 0, 1, 0);
    glRotatef(rotation.z, 0, 0, 1);
    InternalDraw();
    glPopMatrix();
    glPopMatrix();
}

} // namespace kore
