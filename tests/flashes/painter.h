// SPDX-License-Identifier: MIT
#pragma once

#include "tests/flashes/canvas.h"

/// A stand-in for OpenGL that paints the show small and fast, so that every frame of it can be looked at at every frame
/// rate. It does what the show's calls take: matrices, display lists, flat greys, depth. A program links it in place of
/// the driver's library, and glnone for the calls that do nothing to such a picture.
namespace painter {

/// Forgets lists and matrices, and paints on a canvas of this size from now on, in pixels.
void reset(int width, int height);

flashes::Canvas const& canvas();

/// Whether any colour was set that is not a grey between 0 and 1.
bool saw_colour();

} // namespace painter
