// SPDX-License-Identifier: MIT
#pragma once

#include "kore/color.h"
#include "kore/entity.h"

#include <vector>

namespace effect {

/// Flashes the background of the picture on chosen beats and fades it to black. It clears the picture itself, so it
/// belongs first in a scene's drawing order.
class Flash final : public kore::Entity {
public:
    char const* Name() override { return "Flash"; }
    void UpdateLogic(kore::StateData const& state) override;
    void InternalDraw() override {}

    /// Clears the colour buffer to the colour at its current level.
    void Draw() override;

    /// Appends a beat of the scene, in ascending order. Deliberate: after one that the frames skip over nothing flashes
    /// any more.
    void AddFlash(int const& beat) { myBeats.push_back(beat); }

    /// @param duration  of a flash, seconds; initially 2
    void SetDuration(float duration) { myDuration = duration; }

    /// Colour at full level, initially white.
    void SetColor(kore::Color<float> color) { myColor = color; }

private:
    float myTime = 0; ///< seconds of scene time
    int myBeat = -1;  ///< of the scene
    bool myTriggered = false;
    bool myActive = false;
    float myStart = 0;    ///< of the flash, seconds of scene time
    float myDuration = 2; ///< seconds
    float myLevel = 0;    ///< current brightness
    float myPeak = 1;     ///< brightness at a flash's start
    unsigned int myNext = 0;
    std::vector<int> myBeats;
    kore::Color<float> myColor{1, 1, 1, 1};
};

} // namespace effect
