// SPDX-License-Identifier: MIT
#pragma once

#include "kore/mutator.h"

#include <memory>
#include <vector>

namespace kore {

/// Puts one entity on its scene's timeline: on for a window of whole beats.
class Enabler {
public:
    /// @param entity    drawn and updated while the window is open
    /// @param start     first beat of the window, counted from the scene's first beat (0)
    /// @param length    beats the window lasts; 0 never opens
    /// @param beat      length of one beat, seconds
    /// @param relative  true: drawn inside the scene camera's view; false: after it, in the view that main set up
    Enabler(std::shared_ptr<Entity> entity, int start, int length, float beat, bool relative);

    std::shared_ptr<Entity> GetEntity() const { return my_entity; }
    bool RelativeToCamera() const { return relative_to_camera; }
    int GetStartBeat() const { return start_beat; }
    int GetLength() const { return my_length; }

    /// Whether the window was open at the last UpdateLogic.
    bool GetDrawingEnabled() const { return drawing_enabled; }

    /// Appends a mutator. They run in the order added, so of two that set the same property the later one wins.
    void AddMutator(std::shared_ptr<Mutator> mutator);

    /// Opens or closes the window for this frame's beat; while it is open runs the entity's logic, then the mutators.
    void UpdateLogic(StateData const& state);
    void Mutate(StateData const& state);

    /// Draws the entity if the window is open and the pass is its own.
    /// @param relative  the pass: inside the camera's view or outside
    void Draw(bool const& relative) {
        if (drawing_enabled && relative_to_camera == relative) my_entity->Draw();
    }

private:
    std::shared_ptr<Entity> my_entity;
    std::vector<std::shared_ptr<Mutator>> mutators;
    int start_beat;
    int my_length;
    [[maybe_unused]] float start_time; ///< start of the window, seconds. Deliberate: stored for scenes, and never read
    bool relative_to_camera;
    bool drawing_enabled = false;
};

} // namespace kore
