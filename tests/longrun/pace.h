#pragma once

#include "tests/support/effort.h"

namespace longrun {

/// Frames per second of virtual time: few, but several a beat; in a long run the program's own 60.
inline float frame_rate() {
    constexpr float few = 12;
    constexpr float all = 60;
    return support::long_run() ? all : few;
}

} // namespace longrun
