#pragma once

#include "tools/record/beats.h"

#include <optional>
#include <string>
#include <vector>

/// What the recorder is asked to do.
struct RecordOptions {
    std::vector<Millibeats> beats;
    std::string scene; ///< beats count from this scene's first one; "" for the show's
    unsigned int width = 1024;
    unsigned int height = 768;
    unsigned int samples = 4;
    bool frame_after = false;
    bool wire = true; ///< the pulse wire as the OpenGL standard has it, see effect::PulseWire
    std::string folder;
    std::string sheet;
    unsigned int columns = 5;
    bool overview = false; ///< the moments that the running order tells of every scene, in the place of beats
    bool list = false;
};

/// Reads the command line. The help text goes to standard output, a line about the first fault to standard error.
/// @return the exit status, if the program ends here: 0 after the help text, 1 after a fault
std::optional<int> read_command_line(int argc, char const* const* argv, RecordOptions& options);

/// Prints "hardsilence-record: <message>" on standard error.
/// @return 1, the exit status after a fault
int complain(std::string const& message);
