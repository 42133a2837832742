#pragma once

#include "effekt/pulsewire.h"
#include "tools/offscreen/framebuffer.h"
#include "tools/offscreen/offscreencontext.h"
#include "tools/record/playback.h"
#include "tools/record/runningorder.h"

#include <cstdlib>
#include <optional>
#include <string>

/// A show of one's own, off-screen, with the pulse wire visible on every driver.
struct Studio {
    static constexpr unsigned int width = 256;
    static constexpr unsigned int height = 192;

    OffscreenContext context;
    Framebuffer framebuffer;
    std::optional<Playback> playback;
    RunningOrder order;

    /// @return false where there is nothing to draw with
    bool Open() {
        setenv(effect::PulseWire::standard_calls_variable, "1", 1);
        if (!context.Open() || !framebuffer.Create(width, height, 4)) return false;
        playback.emplace();
        order = running_order(playback->GetDemo());
        return true;
    }

    /// The frame of a moment of a scene.
    int FrameOf(std::string const& scene, Millibeats at) const {
        return frame_at(find_scene(order, scene)->Begin() + at);
    }

    /// Plays up to a frame that has not been played yet.
    sf::Image Picture(int frame) {
        playback->DrawFrame(frame);
        return framebuffer.Read();
    }
};
