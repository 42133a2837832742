// SPDX-License-Identifier: MIT
#include "show/score.h"
#include "show/show.h"

#include "effekt/pulsewire.h"
#include "effekt/simplemodel.h"
#include "kore/catmullrom.h"
#include "kore/smoothcam.h"
#include "kore/smoothpositioner.h"

namespace {

constexpr int length = 72; // beats
constexpr int stretch = 8; // beats from one way point to the next

struct Point {
    float x, y, z;
};

// The path of the wire and of the camera through it.
// clang-format off
constexpr Point path_points[] = {
    {0,   0,   0},
    {-5,  -10, -40},
    {5,   20,  -90},
    {-20, 30,  -140},
    {-30, 40,  -200},
    {10,  50,  -260},
    {20,  60,  -300},
    {10,  50,  -340},
    {-10, 30,  -400},
};
// clang-format on

// What the camera looks at. Deliberate: far to one side in the middle, and back over its shoulder at the end.
// clang-format off
constexpr Point look_points[] = {
    {-5,   -10, -40},
    {5,    20,  -90},
    {-20,  30,  -140},
    {-30,  40,  -200},
    {1000, 50,  -260},
    {20,   60,  -300},
    {10,   50,  -340},
    {20,   60,  -400},
    {-10,  30,  -250},
};
// clang-format on

std::shared_ptr<kore::CatmullRom> make_spline(std::span<Point const> points) {
    auto spline = std::make_shared<kore::CatmullRom>();
    for (Point const& p : points) spline->AddSplinePoint({p.x, p.y, p.z});
    return spline;
}

/// A glide through all points of a spline, each at its own time.
template<typename Route>
std::shared_ptr<Route> make_glide(kore::CatmullRom& spline, float beat) {
    auto route = std::make_shared<Route>();
    for (int k = 0; k < spline.PointCount(); ++k) {
        route->AddPos(Route::SMOOTH, beat * static_cast<float>(stretch * k), beat * stretch, spline.GetPoint(k));
    }
    return route;
}

std::shared_ptr<effect::SimpleModel> make_tentacles(kore::Vector3<float> const& pos, kore::Vector3<float> const& rot) {
    auto tentacles = std::make_shared<effect::SimpleModel>(models, "tentacles_silhouette", "");
    tentacles->DrawWireframe(false);
    tentacles->SetScale({0.2f, 0.2f, 1});
    tentacles->SetRot(rot);
    tentacles->SetPos(pos);
    return tentacles;
}

} // namespace

std::shared_ptr<kore::Scene> wire_scene(float const& beat) {
    auto scene = std::make_shared<kore::Scene>(title_of(wire_scene));

    auto camera = std::make_shared<effect::Camera>();
    camera->SetPos({0.5f, 0.5f, 36});

    // A flash on every beat. Deliberate: eight more than the scene has.
    auto blinker = std::make_shared<effect::Blinker>();
    for (unsigned int i = 0; i <= 79; ++i) {
        add_blink(*blinker, beat * static_cast<float>(i), Blink::Strobe, 2, beat);
    }

    auto background = make_background(black, beat);
    blinker->Add(background);

    auto path = make_spline(path_points);
    auto look = make_spline(look_points);
    auto fly = make_glide<kore::SmoothPositioner>(*path, beat);
    auto aim = make_glide<kore::SmoothCam>(*look, beat);

    auto wire = std::make_shared<effect::PulseWire>(path, models);
    wire->SetColor(black);
    blinker->Add(wire);

    auto upper_left = make_tentacles({-0.3f, 0.3f, -1}, {0, 0, 0});
    blinker->Add(upper_left);
    auto lower_right = make_tentacles({0.3f, -0.7f, -1}, {180, 180, 0});
    blinker->Add(lower_right);

    // clang-format off
    Cue const cues[] = {
        // who        from for   view
        {blinker,     0, length, in_camera_view},
        {background,  0, length, fixed_view},
        {wire,        0, length, in_camera_view},
        {upper_left,  0, length, in_camera_view},
        {lower_right, 0, length, in_camera_view},
    };
    // clang-format on
    add_cues(*scene, cues, beat);
    scene->AddCamera(make_enabler({camera, 0, length, in_camera_view, {fly, aim}}, beat));
    return scene;
}
