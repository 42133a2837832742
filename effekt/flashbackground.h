// SPDX-License-Identifier: MIT
#pragma once

#include "effekt/blinking.h"
#include "kore/entity.h"

#include <vector>

namespace effect {

/// The backdrop of a scene: a wall of 30 x 30 tiles in the main colour, x and y from -1500 to 1500, and 100 units
/// behind it one large square in the contrasting colour. The Flip event turns all tiles together.
class FlashBackground final : public kore::Entity, public Blinking {
public:
    /// One tile of the wall.
    class Block {
    public:
        explicit Block(float level_) : level(level_) {}
        float level; ///< 0 flat, 1 fully turned
    };

    /// Compiles the tile; needs a current OpenGL context.
    FlashBackground();

    char const* Name() override { return "FlashBackground"; }
    void UpdateLogic(kore::StateData const& state) override;
    void InternalDraw() override;

    /// Deliberate: only translates, does not rotate and leaves the translation on the matrix.
    void Draw() override;

    /// Besides Invert and Strobe: Flip. One during a run restarts the run.
    void Blink(BlinkerType const& type, int const& value) override;

    /// @param duration  of a flip, seconds; initially 0.5
    void SetSpeed(float duration) { myDuration = duration; }

private:
    static constexpr int tiles = 30; ///< along each side

    enum State { Requested = -1, Running = 0, Idle = 1 };

    unsigned int myTile;   ///< display list of one tile
    float myFlipStart = 0; ///< seconds of scene time
    float myLevel = 1;     ///< turn of every tile: 0 flat, 1 fully turned (which looks flat again)
    State myState = Idle;
    float myDuration = 0.5f; ///< seconds
    bool myFlipBack = false; ///< from turned to flat
    /// Deliberate: every running update writes the level into the blocks, and drawing reads the one level.
    std::vector<Block> myBlocks;
};

} // namespace effect
