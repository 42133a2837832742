// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

/// How loud a soundtrack is from beat to beat.
struct Waveform {
    struct Part {
        float peak = 0; ///< loudest sample of all channels, 0 to 1
        float mean = 0; ///< root of the mean square, 0 to 1
    };

    static constexpr int per_beat = 16; ///< parts

    std::vector<Part> parts; ///< from beat 0 on; empty without a soundtrack
};

/// Reads a soundtrack whole, which takes about half a second.
/// @param beat  length of one beat, seconds
/// @return empty where the file is no soundtrack, see kore/soundtrackfile.h
Waveform read_waveform(std::string const& path, double beat);
