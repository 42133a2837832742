// SPDX-License-Identifier: MIT
#pragma once

#include "tools/record/beats.h"

#include <optional>
#include <string>

inline constexpr char const* rehearse_name = "hardsilence-rehearse";

/// The options of a rehearsal.
struct RehearseOptions {
    Millibeats at = 0;         ///< where it begins
    unsigned int width = 1280; ///< of the window, pixels
    unsigned int height = 720;
    unsigned int samples = 4; ///< per pixel
    bool play = false;        ///< from the first moment
    bool calm = false;
    bool wire = true;
    bool mute = false;
    bool panel = true;
    bool tell = false;          ///< prints its state after every key
    std::string pictures = "."; ///< folder that they are saved in
    std::string content;        ///< build folder whose targets render content/; "" for none
};

/// Reads the command line. The help text goes to standard output, a line about the first error to standard error.
/// @return the exit status, if the program ends here: 0 after the help text, 1 after an error
std::optional<int> read_command_line(int argc, char const* const* argv, RehearseOptions& options);
