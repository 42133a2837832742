// SPDX-License-Identifier: MIT
#pragma once

#include "tools/record/beats.h"
#include "tools/record/filmoptions.h"

#include <optional>
#include <string>
#include <vector>

inline constexpr char const* recorder_name = "hardsilence-record";

/// The recorder's options.
struct RecordOptions {
    std::vector<Millibeats> beats;
    std::string scene;      ///< beats count from the start of this scene; "" for the start of the show
    unsigned int width = 0; ///< pixels
    unsigned int height = 0;
    unsigned int samples = 4;
    unsigned int supersample = 1; ///< see PictureShape
    bool stretch = false;         ///< the same
    bool frame_after = false;
    bool wire = true;  ///< the pulse wire by the OpenGL standard, see effect::PulseWire
    bool calm = false; ///< held cuts instead of strobes, see effect::Blinking
    std::string folder;
    std::string sheet;
    unsigned int columns = 5;
    bool overview = false; ///< the moments in the running order of every scene, instead of beats
    bool list = false;
    std::string timeline; ///< the picture of the show's timeline; "" for none
    FilmOptions film;
};

/// Reads the command line. The help text goes to standard output, a line about the first error to standard error.
/// @return the exit status, if the program ends here: 0 after the help text, 1 after an error
std::optional<int> read_command_line(int argc, char const* const* argv, RecordOptions& options);

/// Prints "hardsilence-record: <message>" on standard error.
/// @return 1, the exit status after an error
int complain(std::string const& message);
