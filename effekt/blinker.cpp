// SPDX-License-Identifier: MIT
#include "effekt/blinker.h"

#include <utility>

namespace effect {

void Blinker::Add(std::shared_ptr<kore::BlinkerInterface> target) { myTargets.push_back(std::move(target)); }

void Blinker::AddEntry(float start, float length, BlinkerType type, int value) {
    myEntries.push_back({start, length, type, value, false});
}

void Blinker::Update(BlinkerType const& type, int const& value) {
    for (auto const& target : myTargets) {
        if (target->BlinkerStarted()) target->Blink(type, value);
    }
}

void Blinker::UpdateLogic(kore::StateData const& state) {
    float const t = state.time;
    for (Entry& entry : myEntries) {
        if (!entry.done && t >= entry.start && entry.start + entry.length > t) {
            entry.done = true;
            Update(entry.type, entry.value);
        }
    }
}

} // namespace effect
