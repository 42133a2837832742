// SPDX-License-Identifier: MIT
#include "show/score.h"
#include "show/show.h"

#include "effekt/brokenmodel.h"
#include "effekt/look.h"
#include "effekt/showmodel.h"
#include "effekt/simplemodel.h"
#include "kore/routepositioner.h"
#include "kore/staticrotator.h"

namespace {

constexpr int length = 16; // beats

// The glass breaks.
// clang-format off
constexpr BlinkRow glass_blinks[] = {
    // beat  type           value
    {12.25f, Blink::Break,  1},
    {12.25f, Blink::Strobe, 2},
    {14.0f,  Blink::Strobe, 2, Show::Full}, // the calm show holds the cut to the end
};
// clang-format on

struct Word {
    char const* name;
    float scale;
    int beats; // how long it is there; one word comes in on every beat
};

// clang-format off
constexpr Word words[] = {
    {"We",       0.1f,   2},
    {"Know",     0.1f,   2},
    {"What",     0.1f,   2},
    {"We",       0.1f,   2},
    {"Are",      0.1f,   2},
    {"Doing",    0.1f,   2},
    {"QUILLONx", 0.065f, 1},
};
// clang-format on

std::shared_ptr<effect::ShowModel> make_word(Word const& word, int k, float beat) {
    auto model = std::make_shared<effect::ShowModel>(models, word.name, "");
    model->SetStartTime(static_cast<float>(k) * beat);
    model->SetScale({word.scale, word.scale, word.scale});
    model->SetTransitionSpeed(0.25f * beat);
    model->SetShowTime(0.75f * beat);
    // Deliberate: white on white in the calm show, where a word swings in as an outline and the held cut turns it
    // black.
    model->SetColor(effect::look.calm ? white : black);
    return model;
}

// A strobe a quarter beat after each of the first eight beats.
std::shared_ptr<effect::Blinker> make_word_blinker(float beat) {
    auto blinker = std::make_shared<effect::Blinker>();
    for (unsigned int i = 0; i <= 7; ++i) {
        add_blink(*blinker, beat * static_cast<float>(i) + 0.25f * beat, Blink::Strobe, 6, beat);
    }
    return blinker;
}

// Half a unit in five beats, two in a quarter of a beat as the glass breaks, one more until the end.
std::shared_ptr<kore::RoutePositioner> make_tag_route(float beat) {
    using Route = kore::RoutePositioner;
    auto route = std::make_shared<Route>();
    //            how            at            for           to
    route->AddPos(Route::JUMP, beat * 7, 0, {-0.12f, 0, 0});
    route->AddPos(Route::LINEAR, beat * 7, beat * 5, {-0.12f, 0, -0.5f});
    route->AddPos(Route::LINEAR, beat * 12, beat * 0.25f, {-0.12f, 0, -2.5f});
    route->AddPos(Route::LINEAR, beat * 12.25f, beat * 3.75f, {-0.12f, 0, -3.5f});
    return route;
}

} // namespace

std::shared_ptr<kore::Scene> intro_scene(float const& beat) {
    auto scene = std::make_shared<kore::Scene>(title_of(intro_scene));

    auto camera = std::make_shared<effect::Camera>();
    camera->SetPos({-0.15f, 0, 1.4f});
    camera->SetLookPos({-0.145f, 0.05f, -1.0f});

    auto glass_blinker = std::make_shared<effect::Blinker>();
    add_blinks(*glass_blinker, glass_blinks, beat);
    auto word_blinker = make_word_blinker(beat);

    // clang-format off
    Cue const blinkers[] = {
        // who          from for   view
        {glass_blinker, 0, length, in_camera_view},
        {word_blinker,  0, length, in_camera_view},
    };
    // clang-format on
    add_cues(*scene, blinkers, beat);

    models->LoadModel("weknow.asc");
    int k = 0;
    for (Word const& word : words) {
        auto model = make_word(word, k, beat);
        word_blinker->Add(model);
        scene->AddEnabler(make_enabler({model, k, word.beats, in_camera_view}, beat));
        ++k;
    }

    auto tag = std::make_shared<effect::SimpleModel>(models, "QUILLONx", "");
    tag->SetColor(black);
    tag->SetScale({0.065f, 0.065f, 0.065f});
    auto tag_spin = std::make_shared<kore::StaticRotator>();
    tag_spin->SetSpin({5, -7, 1});
    glass_blinker->Add(tag);

    auto glass = std::make_shared<effect::BrokenModel>(models, "glass", "");
    glass->DrawWireframe(false);
    glass->SetPos({0, 0, -1.5f});
    glass_blinker->Add(glass);

    auto background = make_background(white, beat);
    glass_blinker->Add(background);

    // clang-format off
    Cue const cues[] = {
        // who       from for    view            moved by
        {tag,        7,  9,      in_camera_view, {tag_spin, make_tag_route(beat)}},
        {glass,      10, 6,      in_camera_view, {}},
        {background, 0,  length, fixed_view,     {}},
    };
    // clang-format on
    add_cues(*scene, cues, beat);
    scene->AddCamera(make_enabler({camera, 0, length, in_camera_view}, beat));
    return scene;
}
