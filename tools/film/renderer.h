// SPDX-License-Identifier: MIT
#pragma once

#include "tools/film/renderers.h"

/// One process's share of the pictures.
struct RenderShare {
    unsigned int number;    ///< of the process, counted from 0
    unsigned int jobs;      ///< how many processes there are
    std::size_t places;     ///< room for so many pictures
    int ready;              ///< to write to: the plan (the first process alone), then a byte for each picture drawn
    int free;               ///< to read from: a byte for each place that may be drawn into
    std::uint8_t* pictures; ///< places x height x width x 3 bytes, black at first
};

/// Loads the show and draws the share's pictures; the whole work of one process.
/// @return exit status; after a failure that is not another process's, an error line has been printed
int render(RenderTask const& task, RenderShare const& share);
