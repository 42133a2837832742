// SPDX-License-Identifier: MIT
#include "show/score.h"
#include "show/shells.h"
#include "show/show.h"

#include "effekt/torusfountain.h"
#include "kore/smoothcam.h"
#include "kore/smoothpositioner.h"
#include "kore/staticrotator.h"

namespace {

constexpr int length = 64; // beats

} // namespace

std::shared_ptr<kore::Scene> fountain_scene(float const& beat) {
    using Route = kore::SmoothPositioner;
    using Look = kore::SmoothCam;
    auto scene = std::make_shared<kore::Scene>(title_of(fountain_scene));

    auto camera = std::make_shared<effect::Camera>();
    camera->SetPos({0, 0, 1200});

    auto const blinkers = add_four_blinkers(*scene, length, beat);

    // One glide of two way points: it travels in the first half of the scene and settles in the second.
    auto route = std::make_shared<Route>();
    route->AddPos(Route::SMOOTH, 0, beat * 32, {0, 0, 1200});
    route->AddPos(Route::SMOOTH, beat * 32, beat * 32, {0, 0, 115});
    // Deliberate: made and never used; the camera always looks at the origin.
    auto look = std::make_shared<Look>();
    look->AddPos(Look::SMOOTH, beat * 32, beat * 32, {0, 0, 500});

    auto background = make_background(white, beat);
    auto fountain = std::make_shared<effect::TorusFountain>(models);
    auto spin = std::make_shared<kore::StaticRotator>();
    spin->SetSpin({30, 90, 50});
    blinkers[0]->Add(fountain);

    // clang-format off
    Cue const cues[] = {
        // who       from for   view            moved by
        {background, 0, length, fixed_view,     {}},
        {fountain,   0, length, in_camera_view, {spin}},
    };
    // clang-format on
    add_cues(*scene, cues, beat);
    add_shells(*scene, blinkers, length, beat);
    scene->AddCamera(make_enabler({camera, 0, length, in_camera_view, {route}}, beat));
    return scene;
}
