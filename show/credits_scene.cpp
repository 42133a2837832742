// SPDX-License-Identifier: MIT
#include "show/score.h"
#include "show/show.h"

#include "effekt/simplemodel.h"

namespace {

// Raise the count to play the pattern more than once.
constexpr int repeat_count = 1;
constexpr int pattern_beats = 24;
constexpr int length = pattern_beats * repeat_count;

// Which of the three dancers is visible on which beat, and the long flicker in which the type can be read.
// clang-format off
constexpr BlinkRow butt_blinks[] = {
    // beat type           value
    {0.05f, Blink::Solid,  1},
    {0.05f, Blink::Strobe, 48},
    {4,     Blink::Solid,  0},
    {6,     Blink::Solid,  1},
    {7,     Blink::Solid,  0},
    {12,    Blink::Solid,  1},
    {13,    Blink::Solid,  0},
    {15,    Blink::Solid,  1},
    {16,    Blink::Solid,  0},
    {21,    Blink::Solid,  1},
    {22,    Blink::Solid,  0},
};

constexpr BlinkRow side_blinks[] = {
    // beat type        value
    {4,  Blink::Solid,  1},
    {5,  Blink::Solid,  0},
    {7,  Blink::Solid,  1},
    {8,  Blink::Solid,  0},
    {13, Blink::Solid,  1},
    {14, Blink::Solid,  0},
    {16, Blink::Solid,  1},
    {16, Blink::Strobe, 48},
    {20, Blink::Solid,  0},
    {22, Blink::Solid,  1},
    {23, Blink::Solid,  0},
};

constexpr BlinkRow stretched_blinks[] = {
    // beat type        value
    {5,  Blink::Solid,  1},
    {6,  Blink::Solid,  0},
    {8,  Blink::Solid,  1},
    {8,  Blink::Strobe, 48},
    {12, Blink::Solid,  0},
    {14, Blink::Solid,  1},
    {15, Blink::Solid,  0},
    {20, Blink::Solid,  1},
    {21, Blink::Solid,  0},
    {23, Blink::Solid,  1},
    {24, Blink::Solid,  0},
};
// clang-format on

struct Dancer {
    char const* name;
    std::span<BlinkRow const> blinks;
    bool seen_first;
    float turn; // degrees about y
};

// clang-format off
constexpr Dancer dancers[] = {
    {"butt_silhouette",     butt_blinks,      true,  0},
    {"side2_silhouette",    side_blinks,      false, 0},
    {"sideview_silhouette", stretched_blinks, false, 180},
};
// clang-format on

std::shared_ptr<effect::Blinker> make_blinker(std::span<BlinkRow const> rows, float beat) {
    auto blinker = std::make_shared<effect::Blinker>();
    for (int r = 0; r < repeat_count; ++r) {
        for (BlinkRow const& row : rows) {
            add_blink(*blinker, (pattern_beats * beat) * static_cast<float>(r) + row.at * beat, row.type, row.value,
                      beat);
        }
    }
    return blinker;
}

} // namespace

std::shared_ptr<kore::Scene> credits_scene(float const& beat) {
    auto scene = std::make_shared<kore::Scene>(title_of(credits_scene));

    auto camera = std::make_shared<effect::Camera>();
    camera->SetPos({0, 0, 4.8f});

    auto background = make_background(black, beat);

    for (Dancer const& dancer : dancers) {
        auto blinker = make_blinker(dancer.blinks, beat);
        auto model = std::make_shared<effect::SimpleModel>(models, dancer.name, "");
        model->DrawSolid(dancer.seen_first);
        model->DrawWireframe(false);
        model->SetRot({0, dancer.turn, 0});
        blinker->Add(model);
        blinker->Add(background);
        // clang-format off
        Cue const cues[] = {
            // who    from for   view
            {blinker, 0, length, in_camera_view},
            {model,   0, length, in_camera_view},
        };
        // clang-format on
        add_cues(*scene, cues, beat);
    }

    auto text = std::make_shared<effect::SimpleModel>(models, "credits", "");
    text->SetColor(black);
    text->DrawWireframe(false);
    text->SetScale({0.3f, 0.3f, 0.3f});
    text->SetPos({-1.5f, 1.5f, 2.0f});

    // clang-format off
    Cue const cues[] = {
        // who       from for   view
        {text,       0, length, in_camera_view},
        {background, 0, length, fixed_view},
    };
    // clang-format on
    add_cues(*scene, cues, beat);
    scene->AddCamera(make_enabler({camera, 0, length, in_camera_view}, beat));
    return scene;
}
