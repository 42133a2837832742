// SPDX-License-Identifier: MIT
#include "runtime/beatclock.h"

void BeatClock::Count(kore::StateData& state) {
    if (IsDue(state.time)) {
        state.beat_count += 1;
        last_beat_time += beat_length; // exactly one beat, whatever the time is: the grid does not drift
        state.new_beat = true;
    }
}

void PauseClock::Toggle(float now) {
    paused = !paused;
    if (paused) {
        pause_start = now;
    } else {
        total_paused += current_pause;
        current_pause = 0;
    }
}

float PauseClock::ShowTime(float now) {
    if (paused) current_pause = now - pause_start;
    return now - (total_paused + current_pause);
}
