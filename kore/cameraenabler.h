// SPDX-License-Identifier: MIT
#pragma once

#include "kore/camera.h"
#include "kore/mutator.h"

#include <memory>
#include <vector>

namespace kore {

/// A camera with mutators and no beat window.
class CameraEnabler {
public:
    explicit CameraEnabler(std::shared_ptr<effect::Camera>& camera) : my_camera(camera), my_entity(camera) {}

    std::shared_ptr<effect::Camera> GetCamera() const { return my_camera; }

    void AddMutator(std::shared_ptr<Mutator> mutator);

    void UpdateLogic(StateData const& state) { Mutate(state); }
    void Mutate(StateData const& state);
    void Draw() { my_camera->Draw(); }

private:
    std::shared_ptr<effect::Camera> my_camera;
    std::shared_ptr<Entity> my_entity; ///< the same camera, as the mutators take it
    std::vector<std::shared_ptr<Mutator>> mutators;
};

} // namespace kore
