// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/frame.h"
#include "runtime/playback.h"
#include "tests/support/withlook.h"
#include "tools/offscreen/framebuffer.h"
#include "tools/offscreen/offscreencontext.h"
#include "tools/record/timetable.h"

#include <string>

/// An off-screen show with the pulse wire visible on every driver.
struct Studio {
    static constexpr unsigned int width = 256;
    static constexpr unsigned int height = 192;

    OffscreenContext context;
    Framebuffer framebuffer;
    kore::Demo demo{beat_seconds};
    Playback playback{demo, recorded_rate};
    Timetable timetable;

    /// @return false where OpenGL cannot draw off-screen
    bool Open() {
        if (!context.Open() || !framebuffer.Create(width, height, 4)) return false;
        init_gl();
        support::WithLook const look(support::standard_wire);
        init_demo(demo, nullptr, beat_seconds);
        timetable = make_timetable(demo);
        return true;
    }

    /// The frame that shows a moment of a scene.
    int FrameOf(std::string const& scene, Millibeats at) const {
        return frame_at(find_scene(timetable, scene)->Begin() + at);
    }

    /// Plays up to a frame and draws it; it must not have been played yet.
    sf::Image Picture(int frame) {
        playback.SkipTo(frame);
        playback.Draw();
        return framebuffer.Read();
    }
};
