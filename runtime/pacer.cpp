// SPDX-License-Identifier: MIT
#include "runtime/pacer.h"

#include <algorithm>

void Pacer::Watch(double now) {
    constexpr int enough = 60; // frames: the few that a driver takes in advance count for little
    constexpr double too_fast = 1.1;
    if (frames == 0) since = now;
    if (++frames <= enough) return;
    active = enough > too_fast * my_rate * (now - since);
    frames = 0;
}

double Pacer::Due(double now) {
    if (my_rate <= 0) return now;
    if (!active) {
        Watch(now);
        return now;
    }
    double const interval = 1 / my_rate;
    due += interval;
    if (!started || now >= due + interval) due = now;
    started = true;
    return std::max(now, due);
}
