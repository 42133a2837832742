// SPDX-License-Identifier: MIT
#include "show/shells.h"

#include "effekt/look.h"
#include "effekt/simplemodel.h"
#include "kore/staticrotator.h"
#include "show/score.h"
#include "show/show.h"

namespace {

constexpr float offsets[] = {0, 0.2f, 0.4f, 0.6f}; // beats

// In the calm show the outermost shell alone answers, with a cut held for one beat. What is near the camera stays
// white: black rings and rods that pass before white flash without any strobe. The ball, whose faces the camera flies
// through, is of wire there: a white face would leave the picture empty.
constexpr std::size_t calm_blinker = 3;

struct Shell {
    char const* name;
    float scale;
    int color;
    int calm_color;
    bool calm_solid;
    std::size_t blinker; // counted from 0
    float spin[3];       // degrees per second
};

// clang-format off
constexpr Shell shells[] = {
    // name              scale  color  calm   calm_solid blinker spin
    {"hollowsoccerball", 20,    black, white, false,     1,      {-30, -90, -50}},
    {"frameoctoball",    30,    white, white, true,      2,      {10, 30, -20}},
    {"frameicosahedron", 150,   black, black, true,      3,      {-40, -30, 20}},
};
// clang-format on

} // namespace

FourBlinkers add_four_blinkers(kore::Scene& scene, int length, float beat) {
    FourBlinkers blinkers;
    for (std::size_t b = 0; b < blinkers.size(); ++b) {
        blinkers[b] = std::make_shared<effect::Blinker>();
        for (unsigned int i = 0; i <= 15; ++i) {
            float const at = beat * static_cast<float>(4 * i);
            if (!effect::look.calm) {
                add_blink(*blinkers[b], at + offsets[b] * beat, Blink::Strobe, 4, beat);
            } else if (b == calm_blinker) {
                add_blink(*blinkers[b], at, Blink::Strobe, 4, beat);
                add_blink(*blinkers[b], at + beat, Blink::Invert, 0, beat);
            }
        }
    }
    for (auto const& blinker : blinkers) scene.AddEnabler(make_enabler({blinker, 0, length, in_camera_view}, beat));
    return blinkers;
}

void add_shells(kore::Scene& scene, FourBlinkers const& blinkers, int length, float beat) {
    for (Shell const& shell : shells) {
        auto model = std::make_shared<effect::SimpleModel>(models, shell.name, "");
        model->SetScale({shell.scale, shell.scale, shell.scale});
        model->SetColor(effect::look.calm ? shell.calm_color : shell.color);
        model->DrawSolid(!effect::look.calm || shell.calm_solid);
        auto spin = std::make_shared<kore::StaticRotator>();
        spin->SetSpin({shell.spin[0], shell.spin[1], shell.spin[2]});
        scene.AddEnabler(make_enabler({model, 0, length, in_camera_view, {spin}}, beat));
        blinkers[shell.blinker]->Add(model);
    }
}
