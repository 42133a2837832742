// SPDX-License-Identifier: MIT
#include "runtime/playback.h"

void Playback::Skip() {
    stepper.Update(NextTime(), static_cast<float>(my_rate));
    ++next;
}

void Playback::SkipTo(int frame) {
    while (next < frame) Skip();
}

void Playback::Draw(DebugCamera const& view) {
    Skip();
    stepper.Draw(view);
}
