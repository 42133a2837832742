// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

/// The name of the show: title of its window, and first line of what it prints.
constexpr char const* window_title = "Hard Silence by Quillon 2012";

/// Settings of the program, set by the command line only.
extern unsigned long video_fullscreen; ///< window style: 8 full screen, 4 a window with a close button
extern bool vsync;
extern int resolution_x; ///< pixels
extern int resolution_y;
extern bool width_given;              ///< the resolution is the viewer's and no default
extern int fps_limit_value;           ///< frames per second, used without vertical sync only; 0 for no limit
extern unsigned int video_depth;      ///< bits
extern unsigned int video_stencil;    ///< bits
extern unsigned int video_fsaa_level; ///< samples
extern bool music_enabled;
extern bool fps_counter;   ///< print the frame rate
extern bool mushroom_mode; ///< the debugging controls are live

/// @return the decimal number at the start of s; 0 where there is none
int my_atoi(std::string const& s);

/// Reads the command line into the settings; messages go to standard output.
/// @return the exit status, if the program ends here: 0 after the help text, 1 after an error
std::optional<int> read_command_line(int argc, char** argv);
