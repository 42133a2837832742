// SPDX-License-Identifier: MIT
#pragma once

#include "kore/scene.h"

#include <memory>
#include <vector>

namespace kore {

/// Plays its scenes one after another on the beat grid, each on a clock of its own.
class Demo {
public:
    /// @param beatLength  length of one beat, seconds
    explicit Demo(float beatLength) : beat_length(beatLength) {}

    void AddScene(std::shared_ptr<Scene> scene);
    std::vector<std::shared_ptr<Scene>>& GetScenes() { return scenes; }

    /// Switches scenes on their beats and updates the current one; does nothing once finished.
    /// @param state  time and beats of the whole show
    void UpdateLogic(StateData const& state);

    /// Draws the current scene; nothing once finished.
    /// @param useCamera  false leaves the scenes' cameras out
    void Draw(bool const& useCamera);

    /// Whether the last scene has ended.
    bool GetFinished() const { return finished; }

    /// Asks for the next or the previous scene; granted on the next frame that counts a beat. Past either end the show
    /// continues with the first scene.
    void SkipSceneFw();
    void SkipSceneBw();

private:
    bool CurrentEnds(StateData const& state) const;
    void Advance(StateData const& state);

    std::vector<std::shared_ptr<Scene>> scenes;
    int current = 0;
    bool finished = false;
    float beat_length;          ///< seconds
    int scene_start_beat = 0;   ///< show beat at which the current scene began
    float scene_start_time = 0; ///< seconds
    bool scene_started = false;
    StateData scene_state;
    bool skip = false;
    int skip_step = 0;
};

} // namespace kore
