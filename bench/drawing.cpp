// SPDX-License-Identifier: MIT
// Frames of the show drawn off-screen and not read back: what a film costs at the least. As fast as the driver can;
// only the last frame is waited for.
//
// usage: drawing WIDTH HEIGHT SAMPLES FROM TO      frames of the show at 60 a second

#include "effekt/look.h"
#include "runtime/frame.h"
#include "runtime/playback.h"
#include "show/show.h"
#include "tools/film/canvas.h"
#include "tools/offscreen/offscreencontext.h"

#include <GL/gl.h>
#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
    auto const number = [&](int i) { return argc > i ? static_cast<unsigned int>(std::atoi(argv[i])) : 0; };
    OffscreenContext context;
    Canvas canvas;
    if (argc != 6 || !context.Open() ||
        !canvas.Create({.width = number(1), .height = number(2), .samples = number(3)}).empty()) {
        std::fprintf(stderr, "usage: drawing WIDTH HEIGHT SAMPLES FROM TO\n");
        return 1;
    }
    effect::look = {.standard_wire = true, .calm = false};
    init_gl();
    kore::Demo demo(beat_seconds);
    init_demo(demo, nullptr, beat_seconds);
    Playback playback(demo, 60);
    playback.SkipTo(static_cast<int>(number(4)));
    while (playback.NextFrame() < static_cast<int>(number(5))) {
        playback.Draw();
        glFlush();
    }
    glFinish();
    return 0;
}
