// SPDX-License-Identifier: MIT
#include "tests/faults/matrix/matrix.h"

std::vector<faults::Group> faults::all_groups() {
    return {
        {"commandline", "options and settings that are wrong", commandline_cells},
        {"signals", "signals while the show plays", signal_cells},
        {"videomode", "the desktop's video mode after the show's end, of every kind", videomode_cells, true},
        {"screens", "displays and drivers that are missing or poor", screen_cells},
        {"servers", "X servers that die, stop or never answer", server_cells},
        {"sound", "sound that is missing, fails or never answers", sound_cells},
        {"soundtrack", "a soundtrack that is none", soundtrack_cells},
        {"streams", "standard streams that are closed, full or unread", stream_cells},
        {"limits", "too few files and threads, too little memory", limit_cells},
        {"data", "files of data/ that are missing or wrong", data_cells},
        {"writing", "what stands in the way of a file", writing_cells},
        {"output", "the tools' standard streams, closed or full", output_cells},
        {"tools", "the tools' options, drivers and resources", tool_cells},
        {"models", "model and mesh files that are wrong", model_cells},
    };
}
