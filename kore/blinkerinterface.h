// SPDX-License-Identifier: MIT
#pragma once

namespace kore {

/// What an effect implements to react to events timed on the beat.
class BlinkerInterface {
public:
    /// The numbers are fixed; 2 and 5 are unassigned and nothing reacts to them.
    enum BlinkerType {
        Invert = 0,    ///< 1: colours swapped; other: normal
        Strobe = 1,    ///< N one-frame flashes
        Wireframe = 3, ///< 1: draw the wireframe; other: don't
        Break = 4,     ///< start to break apart, or to close; the value is ignored
        Flip = 6,      ///< 1: turn the tiles back to flat; other: from flat to turned
        Solid = 7,     ///< 1: draw the solid model; other: don't
    };

    /// Reacts to one event; types that the effect does not know are ignored.
    virtual void Blink(BlinkerType const& type, int const& value) = 0;

    virtual void DrawWireframe(bool draw) = 0;
    virtual void DrawSolid(bool draw) = 0;

    /// Issues the contrasting colour, or the main colour, as the current colour of OpenGL.
    virtual void drawNegativeColor() = 0;
    virtual void drawColor() = 0;

    /// @param color  grey level of the main colour: 0 black, 1 white (any level is passed on unclamped); the
    ///               contrasting level becomes 1 for 0, and 0 for everything else
    virtual void SetColor(int color) = 0;

    /// Whether the effect has been updated at least once; until then events do not reach it.
    virtual bool BlinkerStarted() = 0;

protected:
    BlinkerInterface() = default;
    BlinkerInterface(BlinkerInterface const&) = default;
    BlinkerInterface& operator=(BlinkerInterface const&) = default;
    ~BlinkerInterface() = default;
};

} // namespace kore
