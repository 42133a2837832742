// SPDX-License-Identifier: MIT
#pragma once

#include "tools/timeline/timeline.h"
#include "tools/timeline/waveform.h"

#include <string>

/// A timeline as a picture of SVG 1.1: rows of up to a hundred beats, broken between scenes where that is possible,
/// each with its ruler, the soundtrack's waveform, the cues as bars and the events as ticks, by type.
/// @param title  of the show
std::string timeline_svg(Timeline const& timeline, Waveform const& waveform, std::string const& title);
