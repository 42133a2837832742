// SPDX-License-Identifier: MIT
#include "runtime/picture.h"

#include <GL/gl.h>

namespace {

void blacken(int x, int y, int width, int height) {
    if (width <= 0 || height <= 0) return;
    glScissor(x, y, width, height);
    glClear(GL_COLOR_BUFFER_BIT);
}

} // namespace

void Picture::Resize(int width, int height) {
    window = {0, 0, width, height};
    place = my_stretch ? window : fitted(window);
    // OpenGL counts from below; what is left over in the middle is the same on both sides, but for an odd pixel.
    glViewport(place.x, window.height - place.y - place.height, place.width, place.height);
}

void Picture::Frame() const {
    if (place == window) return;
    int const right = place.x + place.width;
    int const below = place.y + place.height;
    glPushAttrib(GL_COLOR_BUFFER_BIT | GL_SCISSOR_BIT); // the clear colour is the scene's
    glClearColor(0, 0, 0, 0);
    glEnable(GL_SCISSOR_TEST);
    blacken(0, 0, place.x, window.height);
    blacken(right, 0, window.width - right, window.height);
    blacken(0, 0, window.width, window.height - below);
    blacken(0, window.height - place.y, window.width, place.y);
    glPopAttrib();
}
