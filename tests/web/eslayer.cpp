// SPDX-License-Identifier: MIT
#include "tests/web/eslayer.h"

namespace {

long draw_calls = 0;
decltype(fixedgl::Driver::DrawElements) draw_elements = nullptr;

void count_and_draw(GLenum mode, GLsizei count, GLenum type, void const* indices) {
    ++draw_calls;
    draw_elements(mode, count, type, indices);
}

} // namespace

bool EsLayer::Open(unsigned int width, unsigned int height, unsigned int samples, fixedgl::Lines lines) {
    fixedgl::Driver driver{};
    if (!context.Open(OffscreenContext::Api::Embedded) || !fixedgl::load(driver, eglGetProcAddress)) return false;
    draw_calls = 0;
    draw_elements = driver.DrawElements;
    driver.DrawElements = count_and_draw;
    open = fixedgl::open(driver, lines);
    return open && framebuffer.Create(width, height, samples);
}

EsLayer::~EsLayer() {
    if (open) fixedgl::close();
}

sf::Image EsLayer::Read() const {
    fixedgl::flush();
    return framebuffer.Read();
}

long EsLayer::DrawCalls() { return draw_calls; }
