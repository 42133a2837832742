// SPDX-License-Identifier: MIT
#pragma once

#include "tools/rehearse/overlay.h"
#include "tools/rehearse/transport.h"
#include "tools/timeline/timeline.h"
#include "tools/timeline/waveform.h"

#include <optional>

/// The timeline in the window: the whole show in one strip, and the scene that plays, below it, with the names of its
/// cues.
class TimelineView {
public:
    /// Height that it takes at the lower edge of the window, pixels.
    static float Height(Overlay const& overlay) { return 316 * overlay.Scale(); }

    /// Shows it for this frame.
    /// @return the frame that the mouse points at while its button is down
    std::optional<int> Show(Overlay const& overlay, Timeline const& timeline, Waveform const& waveform,
                            Transport const& transport);

    /// Whether the button is still down since it chose a frame.
    bool Dragging() const { return dragging; }

private:
    bool dragging = false;
};
