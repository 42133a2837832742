// SPDX-License-Identifier: MIT
#include "kore/demo.h"

#include <utility>

namespace kore {

void Demo::AddScene(std::shared_ptr<Scene> scene) { scenes.push_back(std::move(scene)); }

bool Demo::CurrentEnds(StateData const& state) const {
    if (skip && state.new_beat) return true;
    return state.beat_count >= scenes[static_cast<std::size_t>(current)]->GetLength() + scene_start_beat;
}

void Demo::Advance(StateData const& state) {
    int const count = static_cast<int>(scenes.size());
    scenes[static_cast<std::size_t>(current)]->Stop();
    if (skip) {
        current += skip_step;
        if (current < 0 || current >= count) current = 0;
    } else {
        ++current;
    }
    if (current >= count) {
        finished = true;
        return;
    }
    scene_start_beat = state.beat_count;
    scene_start_time = static_cast<float>(state.beat_count) * beat_length;
    scene_started = false;
    skip = false;
}

void Demo::UpdateLogic(StateData const& state) {
    if (finished) return;
    if (CurrentEnds(state)) {
        Advance(state);
        if (finished) return;
    }

    Scene& scene = *scenes[static_cast<std::size_t>(current)];
    if (!scene_started) {
        scene.Start();
        scene_started = true;
    }
    // The scene's clock starts on its first beat of the grid, not at the moment of the switch.
    scene_state = state;
    scene_state.time = state.time - scene_start_time;
    scene_state.beat_count = state.beat_count - scene_start_beat;
    scene.UpdateLogic(scene_state);
}

void Demo::Draw(bool const& useCamera) {
    if (!finished) scenes[static_cast<std::size_t>(current)]->Draw(useCamera);
}

void Demo::SkipSceneFw() {
    skip = true;
    skip_step = 1;
}

void Demo::SkipSceneBw() {
    skip = true;
    skip_step = -1;
}

} // namespace kore
