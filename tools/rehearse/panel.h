// SPDX-License-Identifier: MIT
#pragma once

#include "tools/rehearse/overlay.h"
#include "tools/rehearse/transport.h"
#include "tools/timeline/timeline.h"

#include <array>
#include <optional>
#include <string>

/// The times that the last frames took.
class LastFrames {
public:
    void Add(float seconds);

    /// @param share  0 to 1: of the frames
    /// @return what this share of them took at most, seconds; 0 without frames
    float Percentile(float share) const;

    /// Oldest first, milliseconds.
    std::array<float, 120> Milliseconds() const;

private:
    std::array<float, 120> times{}; ///< seconds, a ring
    std::size_t next = 0;
    std::size_t count = 0;
};

/// What the panel tells.
struct Readings {
    LastFrames const& frames;
    std::optional<double> drift; ///< of the picture ahead of the sound, seconds; nothing without sound
    unsigned long calls;         ///< of OpenGL in the last frame
    bool calm;
    bool wire;
    bool samples;
    bool mute;
    bool free_camera;
    std::string pose;     ///< of the free camera
    std::string fault;    ///< in the data; "" for none
    std::string progress; ///< of what is rendered in the background; "" for nothing
};

/// Width of the column at the left edge of the window, pixels.
float panel_width(Overlay const& overlay);

/// Shows the column for this frame.
void show_panel(Overlay const& overlay, Timeline const& timeline, Transport const& transport, Readings const& readings);

/// Shows the keys, in the middle of the window.
void show_keys(Overlay const& overlay);
