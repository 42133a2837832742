#pragma once

#include "kore/demo.h"
#include "runtime/debugcamera.h"

/// Sets the fixed OpenGL state of the show on the current context: blending, depth test, and the frustum of
/// kore/frustum.h, whose picture is stretched to the window. The projection is never changed afterwards.
void init_gl();

/// Updates and draws one frame on the current context. The whole picture is a function of the demo and the state.
/// @param state  time and beats of the show
/// @param view   where it is free, the view that stands in for the scenes' cameras
void draw_frame(kore::Demo& demo, kore::StateData const& state, DebugCamera const& view);
