#include "runtime/playback.h"

void Playback::Skip() {
    stepper.Update(static_cast<float>(next) / my_rate, my_rate);
    ++next;
}

void Playback::SkipTo(int frame) {
    while (next < frame) Skip();
}

void Playback::Draw(DebugCamera const& view) {
    Skip();
    stepper.Draw(view);
}
