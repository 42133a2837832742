// SPDX-License-Identifier: MIT
#pragma once

#include "effekt/blinking.h"
#include "kore/ascmodel.h"
#include "kore/entity.h"

#include <string>

namespace effect {

/// One named model, solid, as a wireframe or both: initially white faces with black lines.
class SimpleModel final : public kore::Entity, public BlinkingWireframe {
public:
    /// @param model_name  object name in the library
    /// @param file_name   file to load when the library does not hold it; "" for the object name with ".asc".
    ///                    A model that cannot be loaded ends the program.
    SimpleModel(kore::AscModel_ptr models, std::string const& model_name, std::string const& file_name);

    char const* Name() override { return "SimpleModel"; }
    void UpdateLogic(kore::StateData const& state) override;
    void InternalDraw() override;

    /// Besides Invert and Strobe: Wireframe and Solid.
    void Blink(BlinkerType const& type, int const& value) override;

    /// Deliberate: both are stored and never read.
    void SetTransitionTime(float const& time) { myTransitionTime = time; }
    void SetTransitionSpeed(float const& speed) { myTransitionSpeed = speed; }

    /// Scale along x, y, z; initially 1.
    void SetScale(kore::Vector3<float> const& scale) { myScale = scale; }

    /// Display list of the faces; the library tells the model's name by it.
    unsigned int FaceList() const { return myModel; }

private:
    unsigned int myModel = 0;     ///< display list of the faces
    unsigned int myWireframe = 0; ///< display list of the edges
    float myTransitionTime = 0;
    float myTransitionSpeed = 1;
    kore::Vector3<float> myScale{1, 1, 1};
};

} // namespace effect
