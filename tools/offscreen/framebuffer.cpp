// SPDX-License-Identifier: MIT
#define GL_GLEXT_PROTOTYPES // gl.h predates framebuffers
#include "tools/offscreen/framebuffer.h"

#include <GL/gl.h>
#include <GL/glext.h>
#include <algorithm>
#include <cstring>
#include <vector>

namespace {

unsigned int limit(GLenum name) {
    GLint value = 0;
    glGetIntegerv(name, &value);
    return static_cast<unsigned int>(std::max(value, 0));
}

} // namespace

Framebuffer::~Framebuffer() {
    Delete(drawn);
    Delete(resolved);
}

unsigned int Framebuffer::LargestSide() { return limit(GL_MAX_RENDERBUFFER_SIZE); }

unsigned int Framebuffer::MostSamples() { return limit(GL_MAX_SAMPLES); }

bool Framebuffer::Create(unsigned int wide, unsigned int high, unsigned int per_pixel) {
    Delete(drawn);
    Delete(resolved);
    if (std::max(wide, high) > LargestSide() || per_pixel > MostSamples()) return false;
    width = wide;
    height = high;
    if (!CreateTarget(resolved, 0) || !CreateTarget(drawn, per_pixel > 1 ? per_pixel : 0)) return false;
    glViewport(0, 0, static_cast<GLsizei>(width), static_cast<GLsizei>(height));
    return true;
}

bool Framebuffer::CreateTarget(Target& target, unsigned int per_pixel) const {
    auto const samples = static_cast<GLsizei>(per_pixel);
    auto const wide = static_cast<GLsizei>(width);
    auto const high = static_cast<GLsizei>(height);
    glGenFramebuffers(1, &target.frame);
    glBindFramebuffer(GL_FRAMEBUFFER, target.frame);
    glGenRenderbuffers(1, &target.color);
    glBindRenderbuffer(GL_RENDERBUFFER, target.color);
    glRenderbufferStorageMultisample(GL_RENDERBUFFER, samples, GL_RGBA8, wide, high);
    glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER, target.color);
    glGenRenderbuffers(1, &target.depth);
    glBindRenderbuffer(GL_RENDERBUFFER, target.depth);
    glRenderbufferStorageMultisample(GL_RENDERBUFFER, samples, GL_DEPTH_COMPONENT24, wide, high);
    glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_DEPTH_ATTACHMENT, GL_RENDERBUFFER, target.depth);
    return glCheckFramebufferStatus(GL_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE;
}

void Framebuffer::Delete(Target& target) {
    if (!target.frame) return;
    glDeleteFramebuffers(1, &target.frame);
    glDeleteRenderbuffers(1, &target.color);
    glDeleteRenderbuffers(1, &target.depth);
    target = {};
}

void Framebuffer::ReadRows(std::uint8_t* pixels) const {
    auto const wide = static_cast<GLsizei>(width);
    auto const high = static_cast<GLsizei>(height);
    glBindFramebuffer(GL_READ_FRAMEBUFFER, drawn.frame);
    glBindFramebuffer(GL_DRAW_FRAMEBUFFER, resolved.frame);
    glBlitFramebuffer(0, 0, wide, high, 0, 0, wide, high, GL_COLOR_BUFFER_BIT, GL_NEAREST);
    glBindFramebuffer(GL_READ_FRAMEBUFFER, resolved.frame);
    glReadPixels(0, 0, wide, high, GL_RGBA, GL_UNSIGNED_BYTE, pixels);
    glBindFramebuffer(GL_FRAMEBUFFER, drawn.frame);
}

sf::Image Framebuffer::Read() const {
    std::size_t const row = std::size_t{4} * width;
    std::vector<sf::Uint8> upside_down(row * height);
    ReadRows(upside_down.data());

    std::vector<sf::Uint8> pixels(upside_down.size());
    for (std::size_t y = 0; y < height; ++y) std::memcpy(&pixels[y * row], &upside_down[(height - 1 - y) * row], row);
    for (std::size_t i = 3; i < pixels.size(); i += 4) pixels[i] = 255;
    sf::Image image;
    image.create(width, height, pixels.data());
    return image;
}
