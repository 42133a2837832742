// SPDX-License-Identifier: MIT
#pragma once

#include "kore/enabler.h"
#include "kore/object.h"
#include "kore/sceneprepare.h"

#include <memory>
#include <string>
#include <vector>

namespace kore {

/// One named section of the show: a camera, a list of enablers and a length that follows from them.
class Scene final : public Object {
public:
    explicit Scene(std::string const& name);

    char const* Name() override { return my_name.c_str(); }

    /// Appends an enabler; they are updated and drawn in this order. The scene lasts until the end of the latest
    /// window.
    void AddEnabler(std::shared_ptr<Enabler> e);

    /// Sets the enabler of the scene's camera, which does not count for the length. Every scene must have one, made
    /// with relative-to-camera true, or the camera is never drawn.
    void AddCamera(std::shared_ptr<Enabler> e);

    /// The camera's enabler; null before AddCamera.
    std::shared_ptr<Enabler> GetCamera() const { return camera; }

    /// @return beats
    int const& GetLength() const { return length; }
    std::vector<std::shared_ptr<Enabler>>& GetEnablers() { return enablers; }

    /// Deliberate: stored and not used; the picture is cleared to the ScenePrepare's colour.
    void SetClearColor(Color<float> color) { clear_color = color; }

    /// Replaces the per-frame preparation.
    void SetPrepare(std::shared_ptr<ScenePrepare> p);

    void Start() { prepare->Start(); }
    void Stop() { prepare->Stop(); }

    /// @param state  time and beats since the scene's first beat
    void UpdateLogic(StateData const& state);

    /// Prepares the picture, draws what stands in the camera's view, then the rest.
    /// @param useCamera  false leaves the scene's camera out, so that the caller's view applies
    void Draw(bool const& useCamera);

private:
    std::string my_name;
    std::vector<std::shared_ptr<Enabler>> enablers;
    std::shared_ptr<Enabler> camera;
    int length = 0; ///< beats
    Color<float> clear_color{0, 0, 0, 1};
    std::shared_ptr<ScenePrepare> prepare;
};

} // namespace kore
