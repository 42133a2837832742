#pragma once

#include <cstdlib>
#include <string>

namespace longrun {

/// Frames per second of virtual time: few, but several a beat; the program's own 60 with HARDSILENCE_LONG=1.
inline float frame_rate() {
    constexpr float few = 12;
    constexpr float all = 60;
    char const* const value = std::getenv("HARDSILENCE_LONG");
    return value && std::string(value) == "1" ? all : few;
}

} // namespace longrun
