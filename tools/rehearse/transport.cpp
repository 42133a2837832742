// SPDX-License-Identifier: MIT
#include "tools/rehearse/transport.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int bar = 4; // beats
constexpr double slowest = 0.125;
constexpr double fastest = 2;

} // namespace

void Transport::SetFrames(int frames) {
    my_frames = frames;
    position = std::min<double>(position, frames - 1);
    if (loop && loop->to > frames) loop.reset();
}

int Transport::Frame() const { return std::clamp(static_cast<int>(std::floor(position)), 0, my_frames - 1); }

void Transport::Seek(int frame) { position = std::clamp(frame, 0, my_frames - 1); }

void Transport::StepFrames(int count) { Seek(Frame() + count); }

void Transport::StepBeats(int count) { StepGrid(count, 1); }

void Transport::StepBars(int count) { StepGrid(count, bar); }

void Transport::StepGrid(int count, int beats) {
    constexpr Millibeats just_behind = 300;
    Millibeats const step = beats * one_beat;
    Millibeats const now = moment_of(Frame());
    Millibeats line = now / step; // the last one that is not ahead
    bool const on_it = Frame() == frame_at(line * step) || (playing && now - line * step < just_behind);
    if (count < 0 && !on_it) ++line;
    Goto((line + count) * step);
}

void Transport::Goto(Millibeats at) { Seek(frame_at(std::clamp(at, 0, most_beats * one_beat))); }

void Transport::Slower() { speed = std::max(slowest, speed / 2); }

void Transport::Faster() { speed = std::min(fastest, speed * 2); }

void Transport::MarkFrom() {
    int const from = Frame();
    loop = Loop{from, loop && loop->to > from ? loop->to : my_frames};
}

void Transport::MarkTo() {
    int const to = std::max(1, Frame());
    loop = Loop{loop && loop->from < to ? loop->from : 0, to};
}

bool Transport::Advance(double seconds) {
    if (!playing) return false;
    position += seconds * speed * recorded_rate;
    if (loop && position >= loop->to) {
        position = loop->from;
        return true;
    }
    if (position >= my_frames) {
        position = my_frames - 1;
        playing = false;
        return true;
    }
    return false;
}
