// SPDX-License-Identifier: MIT
#pragma once

#include "effekt/look.h"
#include "runtime/frame.h"
#include "runtime/playback.h"
#include "show/show.h"

#include <string>
#include <vector>

/// Frames spread over the whole show, the same for every OpenGL that draws them.
namespace filmstrip {

constexpr unsigned int width = 512; // pixels
constexpr unsigned int height = 384;
constexpr unsigned int samples = 4;
constexpr int frames_of_scene = 50;

struct Frame {
    int number; ///< of the show at 60 a second
    std::string scene;
};

/// Plays the show on the current OpenGL, with the wire by the standard.
/// @param see  is told of each frame once it is drawn
template<typename See>
void play(See see) {
    effect::look.standard_wire = true;
    init_gl();
    kore::Demo demo(beat_seconds);
    init_demo(demo, nullptr, beat_seconds);
    Playback playback(demo, 60);
    float first = 0; // beats
    for (auto const& scene : demo.GetScenes()) {
        auto const length = static_cast<float>(scene->GetLength());
        for (int i = 0; i < frames_of_scene; ++i) {
            float const beat = first + length * (static_cast<float>(i) + 0.37f) / frames_of_scene;
            int const number = static_cast<int>(beat * beat_seconds * 60);
            playback.SkipTo(number);
            playback.Draw();
            see(Frame{number, scene->Name()});
        }
        first += length;
    }
}

} // namespace filmstrip
