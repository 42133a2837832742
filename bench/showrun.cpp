// SPDX-License-Identifier: MIT
#include "bench/showrun.h"

#include "show/show.h"

namespace bench {

ShowRun::ShowRun() {
    init_demo(demo, nullptr, beat_seconds);
    scene_end = demo.GetScenes()[0]->GetLength(); // NOLINT(*-prefer-member-initializer): not known before
}

bool ShowRun::Next() {
    for (; playback.NextBeat() >= scene_end; scene_end += demo.GetScenes()[scene]->GetLength()) {
        if (++scene == SceneCount()) return false;
    }
    return true;
}

} // namespace bench
