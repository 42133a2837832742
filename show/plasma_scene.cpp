// SPDX-License-Identifier: MIT
#include "show/score.h"
#include "show/show.h"

#include "effekt/simplemodel.h"
#include "effekt/texturemountain.h"

namespace {

constexpr int length = 32; // beats

// clang-format off
constexpr BlinkRow blinks[] = {
    // beat type        value
    {0,  Blink::Strobe, 9000}, // longer than the scene
    {28, Blink::Strobe, 9000},
    {0,  Blink::Break,  1},    // Deliberate: nothing here reacts to it
    {28, Blink::Break,  1},
    // The titles are cut out for the first beat of every four, and black to be read on the other three.
    {1,  Blink::Strobe, 1, Show::Calm},
    {4,  Blink::Invert, 0, Show::Calm},
    {5,  Blink::Strobe, 1, Show::Calm},
    {8,  Blink::Invert, 0, Show::Calm},
    {9,  Blink::Strobe, 1, Show::Calm},
    {12, Blink::Invert, 0, Show::Calm},
    {13, Blink::Strobe, 1, Show::Calm},
    {16, Blink::Invert, 0, Show::Calm},
    {17, Blink::Strobe, 1, Show::Calm},
    {20, Blink::Invert, 0, Show::Calm},
    {21, Blink::Strobe, 1, Show::Calm},
    {24, Blink::Invert, 0, Show::Calm},
    {25, Blink::Strobe, 1, Show::Calm},
    {29, Blink::Strobe, 1, Show::Calm},
};
// clang-format on

struct Title {
    char const* name;
    float scale;
    float depth; // scale along z
    float y;
};

// clang-format off
constexpr Title titles[] = {
    {"QUILLONx-title", 0.5f, 0.01f, 15},
    {"HARD-title",     30,   1,     0},
    {"SILENCE-title",  6.5f, 1,     -11},
};
// clang-format on

std::shared_ptr<effect::SimpleModel> make_title(Title const& title) {
    auto model = std::make_shared<effect::SimpleModel>(models, title.name, "");
    model->DrawWireframe(false);
    model->SetScale({title.scale, title.scale, title.depth});
    model->SetPos({0, title.y, 10});
    return model;
}

} // namespace

std::shared_ptr<kore::Scene> plasma_scene(float const& beat) {
    auto scene = std::make_shared<kore::Scene>(title_of(plasma_scene));

    auto camera = std::make_shared<effect::Camera>();
    camera->SetPos({0, 0, 31});

    auto blinker = std::make_shared<effect::Blinker>();
    add_blinks(*blinker, blinks, beat);

    // The ground stays as it is: only the titles are targets of the blinker.
    auto background = make_background(black, beat);
    auto mountain = std::make_shared<effect::TextureMountain>();

    // clang-format off
    Cue const ground[] = {
        // who       from for   view
        {background, 0, length, fixed_view},
        {mountain,   0, length, in_camera_view},
    };
    // clang-format on
    add_cues(*scene, ground, beat);

    for (Title const& title : titles) {
        auto model = make_title(title);
        blinker->Add(model);
        scene->AddEnabler(make_enabler({model, 0, length, in_camera_view}, beat));
    }
    scene->AddEnabler(make_enabler({blinker, 0, length, in_camera_view}, beat));
    scene->AddCamera(make_enabler({camera, 0, length, in_camera_view}, beat));
    return scene;
}
