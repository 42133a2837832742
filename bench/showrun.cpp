#include "bench/showrun.h"

#include "show/show.h"

namespace bench {

ShowRun::ShowRun() : beat(beat2seconds(beats_per_minute, 4)), beats(beat), demo(beat) {
    init_demo(demo, nullptr, beat);
    for (auto const& s : demo.GetScenes()) total_beats += s->GetLength();
    scene_end = demo.GetScenes()[0]->GetLength(); // NOLINT(*-prefer-member-initializer): not known before
}

bool ShowRun::Next() {
    constexpr float frames_per_second = 60;
    state.new_beat = false;
    state.time = static_cast<float>(++frame) / frames_per_second;
    beats.Count(state);
    if (state.beat_count >= total_beats) return false;
    while (state.beat_count >= scene_end) scene_end += demo.GetScenes()[++scene]->GetLength();
    return true;
}

} // namespace bench
