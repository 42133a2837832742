// SPDX-License-Identifier: MIT
#include "effekt/flash.h"

#include <GL/gl.h>

namespace effect {

void Flash::UpdateLogic(kore::StateData const& state) {
    myTime = state.time;
    myBeat = state.beat_count;
    if (myNext < myBeats.size() && myBeats[myNext] == myBeat) {
        myTriggered = true;
        ++myNext;
    }
    if (myTriggered) {
        myTriggered = false;
        myActive = true;
        myStart = myTime;
    }
    if (myActive) {
        float const d = myTime - myStart;
        myLevel = d <= 0 ? myPeak : myPeak - myPeak / myDuration * d;
    }
    if (myLevel <= 0) {
        myLevel = 0;
        myActive = false;
    }
}

void Flash::Draw() {
    glClearColor(myLevel * myColor.red, myLevel * myColor.green, myLevel * myColor.blue, 0);
    glClear(GL_COLOR_BUFFER_BIT);
}

} // namespace effect
