// SPDX-License-Identifier: MIT
#include "tools/timeline/timeline.h"

#include "effekt/blinker.h"
#include "effekt/brokenmodel.h"
#include "effekt/showmodel.h"
#include "effekt/simplemodel.h"

#include <algorithm>
#include <cmath>

namespace {

std::string model_of(kore::Entity* entity, kore::AscModel const* models) {
    if (auto const* broken = dynamic_cast<effect::BrokenModel*>(entity)) return broken->ModelName();
    if (!models) return "";
    if (auto const* simple = dynamic_cast<effect::SimpleModel*>(entity)) return models->NameOf(simple->FaceList());
    if (auto const* shown = dynamic_cast<effect::ShowModel*>(entity)) return models->NameOf(shown->FaceList());
    return "";
}

/// Puts each cue into the first lane that is free by then.
/// @return how many lanes that takes
int lay_out(std::vector<TimelineCue>& cues) {
    std::vector<TimelineCue*> in_time;
    in_time.reserve(cues.size());
    for (TimelineCue& cue : cues) in_time.push_back(&cue);
    std::stable_sort(in_time.begin(), in_time.end(), [](auto const* a, auto const* b) { return a->from < b->from; });
    std::vector<int> free_from; // of each lane, beat of the show
    for (TimelineCue* const cue : in_time) {
        auto lane = std::find_if(free_from.begin(), free_from.end(), [&](int beat) { return beat <= cue->from; });
        if (lane == free_from.end()) lane = free_from.insert(lane, 0);
        *lane = cue->from + cue->beats;
        cue->lane = static_cast<int>(lane - free_from.begin());
    }
    return static_cast<int>(free_from.size());
}

void add_events(TimelineScene& scene, effect::Blinker const& blinker, float beat) {
    for (auto const& entry : blinker.Entries()) {
        auto const at = static_cast<Millibeats>(std::lround(entry.start / beat * one_beat));
        scene.events.push_back({scene.first * one_beat + at, entry.type, entry.value});
    }
}

TimelineScene read_scene(kore::Scene& scene, int first, kore::AscModel const* models, float beat) {
    TimelineScene read{scene.Name(), first, scene.GetLength(), {}, {}, 0};
    for (auto const& enabler : scene.GetEnablers()) {
        auto const entity = enabler->GetEntity();
        read.cues.push_back(
            {entity->Name(), model_of(entity.get(), models), first + enabler->GetStartBeat(), enabler->GetLength(), 0});
        if (auto const* blinker = dynamic_cast<effect::Blinker*>(entity.get())) add_events(read, *blinker, beat);
    }
    read.lanes = lay_out(read.cues);
    return read;
}

} // namespace

TimelineScene const& Timeline::SceneAt(int beat) const {
    auto const found =
        std::find_if(scenes.begin(), scenes.end(), [&](auto const& scene) { return beat < scene.End(); });
    return found == scenes.end() ? scenes.back() : *found;
}

std::vector<std::string> Timeline::Kinds() const {
    std::vector<std::string> kinds;
    for (TimelineScene const& scene : scenes) {
        for (TimelineCue const& cue : scene.cues) {
            if (std::find(kinds.begin(), kinds.end(), cue.kind) == kinds.end()) kinds.push_back(cue.kind);
        }
    }
    return kinds;
}

unsigned int cue_color(std::size_t kind) {
    constexpr unsigned int colors[] = {0x6b7280, 0x2f8f83, 0x3b7dd8, 0xc0563f, 0x4b5563,
                                       0x8a63d2, 0xb08428, 0xb0487f, 0x4f8a3c};
    return colors[kind % std::size(colors)];
}

Timeline make_timeline(kore::Demo& demo, kore::AscModel const* models, float beat) {
    Timeline timeline;
    for (auto const& scene : demo.GetScenes()) {
        timeline.scenes.push_back(read_scene(*scene, timeline.Beats(), models, beat));
    }
    return timeline;
}
