#include "tools/record/playback.h"

#include "runtime/frame.h"
#include "show/show.h"
#include "tools/record/beats.h"

Playback::Playback() : beat(beat2seconds(beats_per_minute, 4)), beats(beat), demo(beat) {
    state.fps = recorded_rate;
    init_gl();
    init_demo(demo, nullptr, beat);
}

void Playback::Begin() {
    state.time = static_cast<float>(next) / static_cast<float>(recorded_rate);
    beats.Count(state);
}

void Playback::End() {
    state.new_beat = false;
    ++next;
}

void Playback::Skip() {
    Begin();
    demo.UpdateLogic(state);
    End();
}

void Playback::Draw() {
    Begin();
    draw_frame(demo, state, view);
    End();
}

void Playback::DrawFrame(int frame) {
    while (next < frame) Skip();
    Draw();
}
