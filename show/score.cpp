// SPDX-License-Identifier: MIT
#include "show/score.h"

#include "effekt/look.h"

void add_blink(effect::Blinker& blinker, float at, Blink::BlinkerType type, int value, float beat) {
    blinker.AddEntry(at, beat + beat, type, value);
}

void add_blinks(effect::Blinker& blinker, std::span<BlinkRow const> rows, float beat) {
    Show const other = effect::look.calm ? Show::Full : Show::Calm;
    for (BlinkRow const& row : rows) {
        if (row.in != other) add_blink(blinker, beat * row.at, row.type, row.value, beat);
    }
}

std::shared_ptr<kore::Enabler> make_enabler(Cue const& cue, float beat) {
    auto enabler = std::make_shared<kore::Enabler>(cue.who, cue.from, cue.beats, beat, cue.view);
    for (auto const& mutator : cue.moved_by) enabler->AddMutator(mutator);
    return enabler;
}

void add_cues(kore::Scene& scene, std::span<Cue const> cues, float beat) {
    for (Cue const& cue : cues) scene.AddEnabler(make_enabler(cue, beat));
}

std::shared_ptr<effect::FlashBackground> make_background(int color, float beat) {
    auto background = std::make_shared<effect::FlashBackground>();
    background->SetPos({0, 0, -1500});
    background->SetSpeed(beat + beat);
    background->SetColor(color);
    return background;
}
