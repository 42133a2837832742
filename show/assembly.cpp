// SPDX-License-Identifier: MIT
#include "show/show.h"

#include <algorithm>
#include <cassert>

std::shared_ptr<kore::AscModel> models;

char const* title_of(SceneFunction make) {
    auto const scenes = running_order();
    auto const entry =
        std::find_if(scenes.begin(), scenes.end(), [&](SceneEntry const& scene) { return scene.make == make; });
    assert(entry != scenes.end());
    return entry->title;
}

void init_demo(kore::Demo& demo, std::shared_ptr<kore::Music> /*music*/, float const& beat) {
    models = std::make_shared<kore::AscModel>("data/");
    for (SceneEntry const& scene : running_order()) demo.AddScene(scene.make(beat));
}
