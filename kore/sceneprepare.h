// SPDX-License-Identifier: MIT
#pragma once

#include "kore/color.h"

namespace kore {

/// What a scene does first on every frame: by default it clears the picture to black with alpha 0.
class ScenePrepare {
public:
    /// The scene begins, or ends.
    virtual void Start() {}
    virtual void Stop() {}

    /// Clears the colour and the depth buffer.
    virtual void Draw();

protected:
    Color<float> clear_color{0, 0, 0, 0};
};

} // namespace kore
