// SPDX-License-Identifier: MIT
#include "runtime/stepper.h"

#include "runtime/frame.h"

void Stepper::Update(float time, float fps) {
    state.time = time;
    state.fps = fps;
    state.new_beat = false;
    beats.Count(state);
    my_demo.UpdateLogic(state);
}

void Stepper::Draw(DebugCamera const& view) { draw_frame(my_demo, view); }
