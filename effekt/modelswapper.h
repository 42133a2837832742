// SPDX-License-Identifier: MIT
#pragma once

#include "effekt/blinking.h"
#include "kore/entity.h"

#include <string>

namespace effect {

/// One model, faces and lines, from a file of its own in "data/".
/// Deliberate: it never reports itself started, so a Blinker never reaches it; Blink can be called directly.
class ModelSwapper final : public kore::Entity, public Blinking {
public:
    /// @param name  of the file (without ".asc") and of the object in it. A file that cannot be loaded ends the
    ///              program; if it lacks the object nothing is drawn.
    explicit ModelSwapper(std::string const& name);

    char const* Name() override { return "ModelSwapper"; }

    /// Only counts the strobe down.
    void UpdateLogic(kore::StateData const&) override { CountDown(); }

    /// Deliberate: draws faces and lines whatever the two drawing flags say.
    void InternalDraw() override;

    /// Deliberate: both are stored and never read.
    void SetTransitionTime(float const& time) { myTransitionTime = time; }
    void SetTransitionSpeed(float const& speed) { myTransitionSpeed = speed; }

private:
    unsigned int myModel = 0;     ///< display list of the faces
    unsigned int myWireframe = 0; ///< display list of the edges
    float myTransitionTime = 0;
    float myTransitionSpeed = 1;
};

} // namespace effect
