// SPDX-License-Identifier: MIT
#include "tools/rehearse/rehearsal.h"

#include <GL/gl.h>
#include <algorithm>
#include <utility>

namespace {

int length_of(kore::Demo& demo) {
    int beats = 0;
    for (auto const& scene : demo.GetScenes()) beats += scene->GetLength();
    return frame_at(std::min(beats, most_beats) * one_beat);
}

} // namespace

Rehearsal::Rehearsal(Builder build) : my_build(std::move(build)) {
    Build();
    Seek(0);
}

Rehearsal::~Rehearsal() { Drop(); }

void Rehearsal::Seek(int frame) {
    frame = std::clamp(frame, 0, std::max(0, frames - 1));
    if (frame < Frame()) Build();
    show->playback.SkipTo(frame + 1);
}

void Rehearsal::Rebuild() {
    int const frame = Frame();
    Build();
    Seek(frame);
}

void Rehearsal::Build() {
    Drop();
    show.emplace();
    first_list = glGenLists(1);
    my_build(show->demo);
    last_list = glGenLists(1);
    frames = length_of(show->demo);
}

void Rehearsal::Drop() {
    show.reset();
    if (first_list != 0 && last_list > first_list) {
        glDeleteLists(first_list, static_cast<GLsizei>(last_list - first_list + 1));
    }
    first_list = last_list = 0;
}
