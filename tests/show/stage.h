// SPDX-License-Identifier: MIT
#pragma once

#include "kore/demo.h"
#include "runtime/playback.h"
#include "show/show.h"
#include "tests/support/glrecorder.h"

#include <memory>
#include <string>
#include <vector>

/// Plays scenes in virtual time, at 60 frames per second, and looks at what they draw.
namespace stage {

constexpr float beat = beat_seconds;

/// One scene by itself, with a model library of its own.
class Stage {
public:
    /// @param length  of one beat, seconds
    explicit Stage(SceneFunction make, float length = beat);

    kore::Scene& Scene() { return *scene; }

    /// The entity of one enabler.
    kore::Entity& Entity(std::size_t enabler) { return *scene->GetEnablers().at(enabler)->GetEntity(); }

    /// Updates frame by frame, without drawing, up to and including the first frame at this beat or just after it.
    Stage& PlayTo(double beats);

    /// Updates one frame.
    void Step() { playback.Skip(); }

    /// Clears the log and draws the frame.
    void Draw();

    /// Draws one enabler's entity by itself, without a camera.
    void DrawOnly(std::size_t enabler);

    /// Draws the frame.
    /// @return every list drawn, once, in the order of first use: "name:grey level". The edges of an object are
    ///         "name/lines", its single triangles "name#", the backdrop's tiles "tile".
    std::vector<std::string> Seen();

    /// The same without colours, for frames during a strobe.
    std::vector<std::string> SeenNames();

    /// How often lists of this name were drawn in the frame that was drawn last.
    static long Count(std::string const& name);

    /// The n-th draw of this name in the frame that was drawn last.
    static gl::Draw const& Find(std::string const& name, std::size_t n = 0);

    /// Scene time of the last frame, seconds.
    float Time() const { return playback.State().time; }

private:
    std::shared_ptr<kore::Scene> scene;
    kore::Demo demo;
    Playback playback;
};

/// Gives the lists of the model library the names that Stage::Seen returns.
void name_lists();

} // namespace stage
