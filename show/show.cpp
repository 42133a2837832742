#include "show/show.h"

#include <algorithm>
#include <cassert>

std::shared_ptr<kore::AscModel> models;

namespace {

// clang-format off
constexpr SceneEntry scenes[] = {
    // name        title         made by            beats
    {"intro",      "Intro",      intro_scene},    // 16
    {"gungirl",    "Gun Girl",   gungirl_scene},  // 48
    {"swapper",    "Swapper",    swapper_scene},  // 96
    {"credits",    "Credits",    credits_scene},  // 24
    {"tunnelgate", "Tunnelgate", wire_scene},     // 72
    {"plasma",     "Plasma",     plasma_scene},   // 32
    {"fountain",   "Fountain",   fountain_scene}, // 64
    {"greets",     "Greets",     greets_scene},   // 32
};
// clang-format on

} // namespace

std::span<SceneEntry const> running_order() { return scenes; }

char const* title_of(SceneFunction make) {
    auto const* const entry = std::ranges::find(scenes, make, &SceneEntry::make);
    assert(entry != std::end(scenes));
    return entry->title;
}

void init_demo(kore::Demo& demo, std::shared_ptr<kore::Music> /*music*/, float const& beat) {
    models = std::make_shared<kore::AscModel>("data/");
    for (SceneEntry const& scene : scenes) demo.AddScene(scene.make(beat));
}
