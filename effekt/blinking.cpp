// SPDX-License-Identifier: MIT
#include "effekt/blinking.h"

namespace effect {

void Blinking::Blink(BlinkerType const& type, int const& value) {
    if (myCalm) myHeldCut = type == Strobe && value > 0 && !myHeldCut;
    if (type == Invert) {
        myInverted = value == 1;
    } else if (type == Strobe && !myCalm) {
        myBlinkCount = static_cast<int>(static_cast<unsigned int>(value) * 2 + 1);
    }
}

void BlinkingWireframe::Blink(BlinkerType const& type, int const& value) {
    Blinking::Blink(type, value);
    if (type == Wireframe) myDrawWireframe = value == 1;
}

void Blinking::SetColor(int color) {
    myColor = color;
    myNegativeColor = color == 0 ? 1 : 0;
}

} // namespace effect
