// SPDX-License-Identifier: MIT
#include "show/scatter.h"
#include "show/score.h"
#include "show/show.h"

#include "effekt/brokenmodel.h"
#include "effekt/gyrofuck.h"
#include "effekt/simplemodel.h"
#include "kore/routepositioner.h"
#include "kore/smoothcam.h"

namespace {

constexpr int length = 48; // beats

// clang-format off
constexpr BlinkRow blinks[] = {
    // beat type        value
    {0,  Blink::Break,  1},  // the pieces close in
    {4,  Blink::Strobe, 56}, // and are whole
    {8,  Blink::Invert, 0, Show::Calm}, // the camera looks up, and the gyroscope knows of no cut
    {16, Blink::Flip,   1},
    {24, Blink::Flip,   0},
    {32, Blink::Flip,   1},
    {40, Blink::Flip,   0},
};
// clang-format on

} // namespace

std::shared_ptr<kore::Scene> gungirl_scene(float const& beat) {
    using Route = kore::RoutePositioner;
    using Look = kore::SmoothCam;
    auto scene = std::make_shared<kore::Scene>(title_of(gungirl_scene));

    // The legs for eight beats, then, in one step, the upper half.
    auto camera = std::make_shared<effect::Camera>();
    camera->SetPos({0, -2.6f, 2.3f});
    auto route = std::make_shared<Route>();
    route->AddPos(Route::JUMP, beat * 0, 0, {0, -2.6f, 2.3f});
    route->AddPos(Route::JUMP, beat * 8, 0, {0, 2.6f, 2.3f});
    auto look = std::make_shared<Look>();
    look->AddPos(Look::JUMP, beat * 0, 0, {0, -2.6f, 0});
    look->AddPos(Look::JUMP, beat * 8, 0, {0, 2.6f, 0});

    auto blinker = std::make_shared<effect::Blinker>();
    add_blinks(*blinker, blinks, beat);

    auto silhouette = std::make_shared<effect::SimpleModel>(models, "gungirl_silhouette", "");
    silhouette->SetColor(black);
    silhouette->DrawWireframe(false);
    blinker->Add(silhouette);

    auto pieces = std::make_shared<effect::BrokenModel>(models, "gungirl_silhouette", "");
    pieces->SetColor(black);
    pieces->SetDirection(1);
    pieces->SetTransitionTime(4 * beat);
    Scatter scatter(10, 0.1f); // they turn a lot and hardly move
    pieces->ResetValues(&scatter);
    blinker->Add(pieces);

    auto gyro = std::make_shared<effect::GyroFuck>(models);
    gyro->SetColor(black);
    gyro->SetPos({0, 0, -90});
    blinker->Add(gyro);

    auto background = make_background(white, beat);
    blinker->Add(background);

    // clang-format off
    Cue const cues[] = {
        // who       from for   view
        {silhouette, 4, 44,     in_camera_view},
        {pieces,     0, 4,      in_camera_view},
        {gyro,       8, 40,     in_camera_view},
        {background, 0, length, fixed_view},
        {blinker,    0, length, in_camera_view},
    };
    // clang-format on
    add_cues(*scene, cues, beat);
    scene->AddCamera(make_enabler({camera, 0, length, in_camera_view, {route, look}}, beat));
    return scene;
}
