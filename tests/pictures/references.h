// SPDX-License-Identifier: MIT
#pragma once

#include "tools/record/beats.h"

#include <string>

/// The moments whose pictures are kept in tests/pictures/reference/, in the order of the show. After a change here, or
/// one that is meant to show: cmake --build build-dev --target update-pictures
struct Reference {
    char const* scene;
    Millibeats at; ///< from the scene's first beat
    bool fast;     ///< flies, flashes or flickers, so that the next frame looks different

    /// Relative to the source folder.
    std::string Path() const {
        return std::string("tests/pictures/reference/") + scene + "_" + padded_beat(at) + ".png";
    }
};

// clang-format off
constexpr Reference references[] = {
    // scene       at     fast
    {"intro",      500,   false}, // a standing word
    {"intro",      12400, true},  // the glass breaks
    {"gungirl",    1500,  true},  // closing in
    {"gungirl",    10500, false}, // the portrait
    {"swapper",    4100,  true},  // whole, in the flash
    {"swapper",    77000, false}, // debris
    {"credits",    5500,  false}, // a dancer
    {"credits",    8200,  false}, // the type, in the flicker
    {"tunnelgate", 500,   false}, // the tunnel
    {"tunnelgate", 52000, false}, // in the flash
    {"plasma",     0,     false}, // white type
    {"plasma",     10000, true},  // black type
    {"fountain",   20000, false}, // the jewel
    {"fountain",   37000, false}, // inside
    {"greets",     1500,  false}, // the first name
    {"greets",     16500, false}, // a later one
};
// clang-format on
