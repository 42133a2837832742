// SPDX-License-Identifier: MIT
#pragma once

#include "effekt/look.h"
#include "kore/blinkerinterface.h"

#include <GL/gl.h>

namespace effect {

/// The colours and the blink state that every reacting effect has, and the operations on them.
///
/// In the calm mode (Look::calm) a strobe is a cut that is held: its colours swap once, and the next event of any type
/// swaps them back. Nothing is counted in frames then.
class Blinking : public kore::BlinkerInterface {
public:
    bool BlinkerStarted() final { return myStarted; }

    /// Invert and Strobe; an effect that knows more types adds them.
    void Blink(BlinkerType const& type, int const& value) override;

    void SetColor(int color) final;
    void drawColor() final { Issue(Grey()); }
    void drawNegativeColor() final { Issue(NegativeGrey()); }
    void DrawSolid(bool draw) final { myDrawSolid = draw; }
    void DrawWireframe(bool draw) final { myDrawWireframe = draw; }

protected:
    ~Blinking() = default;

    /// Strobes for one frame more: 2N+1 updates give N frames of swapped colours, each followed by a normal one.
    void CountDown() {
        if (myBlinkCount > 0) --myBlinkCount;
    }

    /// The start of nearly every effect's UpdateLogic: from now on events are heard, and the strobe runs.
    void UpdateBlink() {
        myStarted = true;
        CountDown();
    }

    /// The grey levels that drawColor and drawNegativeColor issue at present.
    float Grey() const { return static_cast<float>(Swapped() ? myNegativeColor : myColor); }
    float NegativeGrey() const { return static_cast<float>(Swapped() ? myColor : myNegativeColor); }

    static void Issue(float grey) { glColor3f(grey, grey, grey); }

    int myColor = 1;         ///< grey level of the main colour
    int myNegativeColor = 0; ///< grey level that contrasts with it
    int myBlinkCount = 0;    ///< frames of strobe left
    bool myInverted = false;
    bool myDrawWireframe = true;
    bool myDrawSolid = true;
    bool myStarted = false; ///< updated at least once

private:
    bool const myCalm = look.calm;
    bool myHeldCut = false; ///< in the calm mode: since a strobe

    /// Inversion and a strobe's flash cancel each other.
    bool Swapped() const { return myInverted != (myHeldCut || (myBlinkCount != 0 && myBlinkCount % 2 == 0)); }
};

/// An effect that hears Wireframe, too.
class BlinkingWireframe : public Blinking {
public:
    void Blink(BlinkerType const& type, int const& value) override;

protected:
    ~BlinkingWireframe() = default;
};

} // namespace effect
