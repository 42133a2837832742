#pragma once

#include "tools/record/beats.h"

#include <string>

/// The moments whose pictures are kept in tests/pictures/reference/, in the order of the show. After a change here, or
/// one that is meant to show: cmake --build build-dev --target update-pictures
struct Reference {
    char const* scene;
    Millibeats at; ///< from the scene's first beat

    /// Relative to the source folder.
    std::string Path() const {
        return std::string("tests/pictures/reference/") + scene + "_" + padded_beat(at) + ".png";
    }
};

constexpr Reference references[] = {
    {"intro",    500  }, // a word stands
    {"intro",    12400}, // the glass breaks
    {"gungirl",  1500 }, // closing in
    {"gungirl",  10500}, // the portrait
    {"swapper",  4100 }, // whole, in the flash
    {"swapper",  77000}, // debris
    {"credits",  5500 }, // a dancer
    {"credits",  8200 }, // the type, in the flicker
    {"wire",     500  }, // the tunnel
    {"wire",     52000}, // in the flash
    {"plasma",   0    }, // white type
    {"plasma",   10000}, // black type
    {"fountain", 20000}, // the jewel
    {"fountain", 37000}, // inside
    {"greets",   1500 }, // the first name
    {"greets",   16500}, // a later one
};
