// SPDX-License-Identifier: MIT
#pragma once

#include "tools/offscreen/framebuffer.h"
#include "tools/offscreen/offscreencontext.h"
#include "web/gl/fixedgl.h"

/// The layer on an off-screen OpenGL ES.
class EsLayer {
public:
    EsLayer() = default;
    EsLayer(EsLayer const&) = delete;
    EsLayer& operator=(EsLayer const&) = delete;
    ~EsLayer();

    /// @return false where there is no OpenGL ES 3
    bool Open(unsigned int width, unsigned int height, unsigned int samples, fixedgl::Lines lines);

    /// @return the picture as drawn so far
    sf::Image Read() const;

    /// Of the driver, since it was opened.
    static long DrawCalls();

private:
    OffscreenContext context;
    Framebuffer framebuffer;
    bool open = false;
};
