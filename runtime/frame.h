// SPDX-License-Identifier: MIT
#pragma once

#include "kore/demo.h"
#include "runtime/debugcamera.h"

/// Sets the fixed OpenGL state of the show on the current context: blending, depth test, and the frustum of
/// kore/frustum.h, whose picture is stretched to the window. The projection is never changed afterwards.
void init_gl();

/// Draws the demo as its last update has left it, on the current context.
/// @param view  where it is free, the view that stands in for the scenes' cameras
void draw_frame(kore::Demo& demo, DebugCamera const& view);
