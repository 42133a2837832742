// SPDX-License-Identifier: MIT
// A show of one's own: two scenes of eight beats, a mesh and a piece of music.

#include "show/show.h"
#include "effekt/brokenmodel.h"
#include "effekt/simplemodel.h"
#include "kore/staticrotator.h"
#include "show/datacheck.h"
#include "show/score.h"

char const* const soundtrack_file = "data/music.wav";

std::span<MeshFile const> mesh_files() {
    static MeshFile const files[] = {{"star.asc", {"star"}, true}};
    return files;
}

namespace {

constexpr int length = 8; // beats of each scene

/// A star that moves between a wall and a camera, and hears events.
template<typename Model>
std::shared_ptr<kore::Scene> star_scene(SceneFunction self, std::span<BlinkRow const> blinks, float beat) {
    auto scene = std::make_shared<kore::Scene>(title_of(self));
    auto star = std::make_shared<Model>(models, "star", "");
    auto spin = std::make_shared<kore::StaticRotator>();
    spin->SetSpin({20, 90, 0}); // degrees a second
    auto camera = std::make_shared<effect::Camera>();
    camera->SetPos({0, 0, 8});
    auto blinker = std::make_shared<effect::Blinker>();
    add_blinks(*blinker, blinks, beat);
    blinker->Add(star);
    Cue const cues[] = {
        {make_background(black, beat), 0, length, fixed_view},
        {star, 0, length, in_camera_view, {spin}},
        {blinker, 0, length, in_camera_view},
    };
    add_cues(*scene, cues, beat);
    scene->AddCamera(make_enabler({camera, 0, length, in_camera_view}, beat));
    return scene;
}

std::shared_ptr<kore::Scene> turning_scene(float const& beat) {
    constexpr BlinkRow blinks[] = {{0.25f, Blink::Strobe, 4}, {4, Blink::Invert, 1}, {6, Blink::Invert, 0}};
    return star_scene<effect::SimpleModel>(turning_scene, blinks, beat);
}

std::shared_ptr<kore::Scene> falling_scene(float const& beat) {
    constexpr BlinkRow blinks[] = {{2, Blink::Break, 1}};
    return star_scene<effect::BrokenModel>(falling_scene, blinks, beat);
}

constexpr SceneEntry scenes[] = {
    {"turning", "Turning Star", turning_scene, {1, 2, 3, 5, 7}},
    {"falling", "Falling Star", falling_scene, {1, 2, 3, 5, 7}},
};

} // namespace

std::span<SceneEntry const> running_order() { return scenes; }
