// SPDX-License-Identifier: MIT
#include "runtime/soundclock.h"

#include <algorithm>
#include <cmath>

void SoundClock::Forget() {
    heard = false;
    filled = 0;
}

void SoundClock::Note(double time, double lead) {
    if (filled == 0 || time >= span_end) {
        if (filled == spans) {
            std::rotate(leads.begin(), leads.begin() + 1, leads.end());
        } else {
            ++filled;
        }
        leads[static_cast<std::size_t>(filled) - 1] = lead;
        span_end = time + span;
    }
    double& last = leads[static_cast<std::size_t>(filled) - 1];
    last = std::max(last, lead);
}

double SoundClock::Lead() const {
    double sum = 0;
    for (int i = 0; i < filled; ++i) sum += leads[static_cast<std::size_t>(i)];
    return sum / filled;
}

void SoundClock::Listen(double time, double position) {
    constexpr double stuck = 0.2;    // seconds without a step: the sound hangs, or has ended
    constexpr double too_far = 0.5;  // seconds: not to be led away unseen
    constexpr int spans_to_know = 4; // before anything is done
    if (!heard || position != last_position) moved = time;
    bool const went_back = heard && position < last_position;
    double const elapsed = heard ? std::max(0.0, time - last_time) : 0;
    last_time = time;
    last_position = position;
    if (went_back || time - moved > stuck || std::abs(position - time - correction) > too_far) return Forget();
    heard = true;
    Note(time, position - time);
    if (filled < spans_to_know) return;
    followed = true;
    double const drift = Lead() - correction;
    greatest_drift = std::max(greatest_drift, std::abs(drift));
    correction += std::clamp(drift, -fastest * elapsed, fastest * elapsed);
}
