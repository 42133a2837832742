// SPDX-License-Identifier: MIT
#include "effekt/texture.h"

#include <GL/gl.h>
#include <GL/glu.h>
#include <vector>

namespace effect {

namespace {

int power_of_two_side(int wanted) {
    if (wanted < 65) return 64;
    return wanted > 128 ? 256 : 128;
}

} // namespace

bool Texture::Init(int w, int h) {
    width = power_of_two_side(w);
    height = power_of_two_side(h);
    size = width * height;
    pixels = std::make_unique<unsigned char[]>(static_cast<std::size_t>(size));
    return true;
}

void Texture::SetTexture(texture_filter f) {
    // OpenGL reads three bytes a texel, so each grey value is passed three times.
    std::vector<unsigned char> rgb;
    rgb.reserve(static_cast<std::size_t>(size) * 3);
    for (int i = 0; i < size; ++i) rgb.insert(rgb.end(), 3, pixels[static_cast<std::size_t>(i)]);

    glBindTexture(GL_TEXTURE_2D, texture_name);
    switch (f) {
    case filter_linear:
        glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
        glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
        break;
    case filter_mipmap:
        glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR_MIPMAP_NEAREST);
        gluBuild2DMipmaps(GL_TEXTURE_2D, 3, width, height, GL_RGB, GL_UNSIGNED_BYTE, rgb.data());
        return;
    case filter_nearest:
        glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
        glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
        break;
    }
    glTexImage2D(GL_TEXTURE_2D, 0, 3, width, height, 0, GL_RGB, GL_UNSIGNED_BYTE, rgb.data());
}

} // namespace effect
