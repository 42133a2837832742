// SPDX-License-Identifier: MIT
#pragma once

#include "kore/blinkerinterface.h"
#include "kore/entity.h"

#include <memory>
#include <vector>

namespace effect {

/// Sends events to effects at set times of the scene. An entity like any other, though it draws nothing: its enabler
/// runs it.
class Blinker final : public kore::Entity {
public:
    using BlinkerType = kore::BlinkerInterface::BlinkerType;

    /// One scheduled event.
    struct Entry {
        float start;  ///< of its window, seconds of scene time
        float length; ///< of its window, seconds
        BlinkerType type;
        int value;
        bool done; ///< has fired
    };

    char const* Name() override { return "Blinker"; }

    /// Appends a target. One that is added twice gets each event twice.
    void Add(std::shared_ptr<kore::BlinkerInterface> target);

    /// Schedules an event; entries need not be sorted. Each fires once in the life of the program, on the first frame
    /// inside its window, so one whose window passes between two frames never does.
    /// @param start   start of the window, seconds of scene time
    /// @param length  length of the window, seconds; 0 never fires
    void AddEntry(float start, float length, BlinkerType type, int value);

    /// What is scheduled, in the order added.
    std::vector<Entry> const& Entries() const { return myEntries; }

    /// Deliberate: stored and never read.
    void SetFreq(int const& freq) { myFreq = freq; }

    /// Sends one event to every target that has started; the others never get it.
    void Update(BlinkerType const& type, int const& value);

    /// Fires what is due, in the order of the entries.
    void UpdateLogic(kore::StateData const& state) override;

    void InternalDraw() override {}
    void Draw() override {}

private:
    int myFreq = 2;
    std::vector<std::shared_ptr<kore::BlinkerInterface>> myTargets;
    std::vector<Entry> myEntries;
};

} // namespace effect
