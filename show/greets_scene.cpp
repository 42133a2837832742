// SPDX-License-Identifier: MIT
#include "show/score.h"
#include "show/shells.h"
#include "show/show.h"

#include "effekt/simplemodel.h"
#include "effekt/torusfountain.h"
#include "kore/routepositioner.h"
#include "kore/staticrotator.h"

namespace {

constexpr int length = 32; // beats
// Deliberate: longer than the scene, whose length the camera does not set.
constexpr int camera_length = 64;

// One sets off every two beats and travels for sixteen.
constexpr char const* greetings[] = {
    "Arbalest", "Pixelherds", "Lanternfly", "Mirevolt", "Quartzine", "Tundrabeat", "Obelisk_K", "Heavy_Cart",
};
constexpr int greeting_beats = 16;

Cue make_greeting(char const* name, unsigned int k, float beat) {
    using Route = kore::RoutePositioner;
    auto greeting = std::make_shared<effect::SimpleModel>(models, name, "");
    greeting->SetScale({7, 7, 7});
    greeting->SetRot({90, 0, 0});

    auto tumble = std::make_shared<kore::StaticRotator>();
    tumble->SetSpin({100, 10, 0});
    // From beside the camera, away along its line of sight.
    auto route = std::make_shared<Route>();
    float const start = beat * static_cast<float>(k + k);
    route->AddPos(Route::JUMP, start, 0, {2, -30, 0});
    route->AddPos(Route::LINEAR, start, beat * greeting_beats, {-0.4f, 224.8f, -1.9f});
    return {greeting, static_cast<int>(k + k), greeting_beats, in_camera_view, {tumble, route}};
}

} // namespace

std::shared_ptr<kore::Scene> greets_scene(float const& beat) {
    auto scene = std::make_shared<kore::Scene>(title_of(greets_scene));

    auto camera = std::make_shared<effect::Camera>();
    camera->SetPos({-0.2f, -33.8f, 0.1f});
    camera->SetLookPos({-0.4f, 24.8f, -1.9f});

    auto const blinkers = add_four_blinkers(*scene, length, beat);

    auto background = make_background(white, beat);
    auto fountain = std::make_shared<effect::TorusFountain>(models);
    blinkers[0]->Add(fountain);

    // clang-format off
    Cue const cues[] = {
        // who       from for   view
        {background, 0, length, fixed_view},
        {fountain,   0, length, in_camera_view},
    };
    // clang-format on
    add_cues(*scene, cues, beat);
    add_shells(*scene, blinkers, length, beat);

    models->LoadModel("greetings.asc");
    unsigned int k = 0;
    for (char const* name : greetings) scene->AddEnabler(make_enabler(make_greeting(name, k++, beat), beat));

    scene->AddCamera(make_enabler({camera, 0, camera_length, in_camera_view}, beat));
    return scene;
}
