// SPDX-License-Identifier: MIT
#pragma once

#include "effekt/blinking.h"
#include "kore/ascmodel.h"
#include "kore/entity.h"

#include <string>

namespace effect {

/// One named model shown like a sign: it swings in about a hinge parallel to x, stands upright for a while, and swings
/// away about the mirrored hinge.
class ShowModel final : public kore::Entity, public BlinkingWireframe {
public:
    /// @param model_name  object name in the library
    /// @param file_name   file to load when the library does not hold it; "" for the object name with ".asc".
    ///                    A model that cannot be loaded ends the program.
    ShowModel(kore::AscModel_ptr models, std::string const& model_name, std::string const& file_name);

    char const* Name() override { return "ShowModel"; }
    void UpdateLogic(kore::StateData const& state) override;
    void InternalDraw() override;

    /// When the model begins to swing in: seconds of scene time, initially 0. (Before, it stands upright.)
    void SetStartTime(float const& time) { myStartTime = time; }

    /// How long it stands: seconds, initially 5.
    void SetShowTime(float const& time) { myShowTime = time; }

    /// How long each swing takes: seconds, initially 1. With 0 there is no swing in.
    void SetTransitionSpeed(float const& speed) { myTransitionSpeed = speed; }

    /// The hinge while it swings in, initially (0, 5, 0); mirrored about the origin while it swings away.
    void SetStartPos(kore::Vector3<float> const& pos) { myStartPos = pos; }

    /// Deliberate: stored and never read.
    void SetEndPos(kore::Vector3<float> const& pos) { myEndPos = pos; }

    /// Scale along x, y, z; initially 1.
    void SetScale(kore::Vector3<float> const& scale) { myScale = scale; }

    /// Display list of the faces; the library tells the model's name by it.
    unsigned int FaceList() const { return myModel; }

private:
    void DrawScaled(unsigned int list) const;

    unsigned int myModel = 0;     ///< display list of the faces
    unsigned int myWireframe = 0; ///< display list of the edges
    float myStartTime = 0;
    float myShowTime = 5;
    float myTransitionSpeed = 1;
    bool myLeaving = false; ///< has begun to swing away; never reset
    kore::Vector3<float> myStartPos{0, 5, 0};
    kore::Vector3<float> myEndPos{0, 0, 0};
    float myAngle = 0; ///< degrees: from 120 to 0 coming in, to -120 leaving
    kore::Vector3<float> myScale{1, 1, 1};
};

} // namespace effect
