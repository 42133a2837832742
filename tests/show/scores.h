#pragma once

#include "kore/blinkerinterface.h"
#include "tests/show/stage.h"

#include <iosfwd>
#include <string>
#include <vector>

/// What every scene's timeline must be, in tables of the tests' own.
namespace scores {

using Type = kore::BlinkerInterface::BlinkerType;

/// When an entity is on, in beats.
struct Window {
    std::string name;
    int start, length;
    bool relative;
    bool operator==(Window const&) const = default;
};

std::ostream& operator<<(std::ostream& out, Window const& w);

/// An event: a time in hundredths of a beat, so that it compares exactly.
struct Event {
    int at;
    Type type;
    int value;
    bool operator==(Event const&) const = default;
};

std::ostream& operator<<(std::ostream& out, Event const& e);

struct Score {
    char const* name;
    stage::SceneFunction make;
    int length;
    std::vector<Window> windows;
    std::vector<std::vector<Event>> blinks;        ///< of each blinker, in the order of the enablers
    std::vector<std::vector<std::size_t>> targets; ///< of each blinker: indices of enablers
};

/// All eight, in their order.
std::vector<Score> const& all();

} // namespace scores
