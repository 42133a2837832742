// SPDX-License-Identifier: MIT
#pragma once

namespace kore {

/// The timing record handed to every UpdateLogic and to every mutator, once per frame.
/// main's record counts from the start of the show; the record that Demo hands to a scene counts from the scene's
/// first beat.
struct StateData {
    float time = 0;        ///< seconds
    int beat_count = -1;   ///< whole beats; -1 before the first beat has been counted
    bool new_beat = false; ///< true only on the frame on which beat_count advanced
    float fps = 0;         ///< last measured frame rate, frames per second
};

} // namespace kore
