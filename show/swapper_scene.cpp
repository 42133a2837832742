// SPDX-License-Identifier: MIT
#include "show/scatter.h"
#include "show/score.h"
#include "show/show.h"

#include "effekt/brokenmodel.h"
#include "effekt/simplemodel.h"
#include "kore/staticrotator.h"

#include <iterator>

namespace {

// One after another in the centre; a seventh name makes the scene 16 beats longer.
constexpr char const* shapes[] = {
    "framecube", "spikeydodecahedron", "frameoctoball", "infinity", "maltanristi", "frametetrahedron",
};
constexpr int shape_beats = 16;
constexpr int length = shape_beats * static_cast<int>(std::size(shapes));

std::shared_ptr<kore::StaticRotator> make_spin(kore::Vector3<float> const& spin) {
    auto rotator = std::make_shared<kore::StaticRotator>();
    rotator->SetSpin(spin);
    return rotator;
}

std::shared_ptr<effect::BrokenModel> make_shape(char const* name, float beat) {
    auto shape = std::make_shared<effect::BrokenModel>(models, name, "");
    shape->SetColor(black);
    shape->KeepWireframe(true);
    shape->SetDirection(1);
    shape->SetTransitionTime(4 * beat);
    Scatter scatter(10, 3.5f);
    shape->ResetValues(&scatter);
    return shape;
}

std::shared_ptr<effect::BrokenModel> make_ball() {
    auto ball = std::make_shared<effect::BrokenModel>(models, "frameoctoball", "");
    Scatter scatter(0.1f, 0.1f); // it only trembles
    ball->ResetValues(&scatter);
    ball->KeepWireframe(true);
    ball->DrawSolid(false);
    ball->SetScale({19, 19, 19});
    ball->SetPos({-80, 80, -300});
    return ball;
}

std::shared_ptr<effect::SimpleModel> make_gun() {
    auto gun = std::make_shared<effect::SimpleModel>(models, "gun_silhouette", "");
    gun->SetColor(black);
    gun->DrawWireframe(false);
    gun->SetScale({12, 12, 1});
    gun->SetPos({40, -40, -100});
    return gun;
}

} // namespace

std::shared_ptr<kore::Scene> swapper_scene(float const& beat) {
    auto scene = std::make_shared<kore::Scene>(title_of(swapper_scene));

    auto camera = std::make_shared<effect::Camera>();
    camera->SetPos({0, 0, 20});

    auto blinker = std::make_shared<effect::Blinker>();
    auto const blink = [&](unsigned int at, Blink::BlinkerType type, int value) {
        add_blink(*blinker, beat * static_cast<float>(at), type, value, beat);
    };
    blink(15, Blink::Strobe, 16);
    blink(16, Blink::Strobe, 16);

    unsigned int k = 0;
    for (char const* name : shapes) {
        blink(8 * k, Blink::Break, 1);
        blink(shape_beats * k + 4, Blink::Strobe, 4);
        auto shape = make_shape(name, beat);
        blinker->Add(shape);
        int const from = shape_beats * static_cast<int>(k);
        scene->AddEnabler(make_enabler({shape, from, shape_beats, in_camera_view, {make_spin({30, 90, 50})}}, beat));
        ++k;
    }
    // Every eight beats the shape closes or breaks. Deliberate: the loop above has scheduled the first six already.
    for (unsigned int i = 0; i < 12; ++i) blink(8 * i, Blink::Break, 1);

    auto gun = make_gun();
    blinker->Add(gun);
    auto ball = make_ball();
    blinker->Add(ball);
    auto background = make_background(white, beat);
    blinker->Add(background);

    // clang-format off
    Cue const cues[] = {
        // who       from for   view            moved by
        {gun,        0, length, fixed_view,     {}},
        {ball,       0, length, in_camera_view, {make_spin({90, 30, 50})}},
        {background, 0, length, fixed_view,     {}},
        {blinker,    0, length, in_camera_view, {}},
    };
    // clang-format on
    add_cues(*scene, cues, beat);
    scene->AddCamera(make_enabler({camera, 0, length, in_camera_view}, beat));
    return scene;
}
