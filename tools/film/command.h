// SPDX-License-Identifier: MIT
#pragma once

#include "tools/film/plan.h"
#include "tools/record/filmformat.h"

#include <string>
#include <vector>

/// What ffmpeg is asked to make.
struct EncoderTask {
    std::string file = {};              ///< where it writes to
    FilmFormat const* format = nullptr; ///< null where the arguments tell all
    std::string arguments = {};         ///< instead of the format's, where not ""
    unsigned int width = 0;             ///< pixels
    unsigned int height = 0;
    FilmPlan plan = {};
    std::string music = {};  ///< the soundtrack's path; "" for a silent film
    int sample_rate = 48000; ///< of the soundtrack
    bool calm = false;
};

/// The command line of ffmpeg that makes a film of the bare pixels on its standard input.
std::vector<std::string> encoder_command(EncoderTask const& task);

/// The same, for a script that runs ffmpeg by itself on pictures made elsewhere: the film's frames, rate and size, and
/// the arguments for its pictures, its sound (with the music as the second input) and its tags, as variables of bash.
/// @param home  the folder that holds "data/"
std::string encoder_script(EncoderTask const& task, std::string const& home);

/// Splits arguments at spaces; what stands between quotes, ' or ", stays together.
std::vector<std::string> split_arguments(std::string const& text);

/// What a viewer has to know before the film starts, in a line.
char const* film_notice(bool calm);
