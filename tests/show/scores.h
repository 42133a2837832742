// SPDX-License-Identifier: MIT
#pragma once

#include "kore/blinkerinterface.h"
#include "show/show.h"

#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

/// The show a second time, in the tests' own tables: what is in its scenes, and when.
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
    char const* title;
    SceneFunction make;
    int length;           ///< beats
    std::uint64_t calls;  ///< of OpenGL, over all frames of the scene at 60 frames a second
    std::uint64_t stream; ///< their checksum; callstream_test.cpp prints it if it differs
    std::vector<Window> windows;
    std::vector<std::vector<Event>> blinks;        ///< of each blinker, in the order of the enablers
    std::vector<std::vector<std::size_t>> targets; ///< of each blinker: indices of enablers
};

/// All scenes, in the order of the show.
std::vector<Score> const& all();

/// The show beat on which a scene begins.
/// @param scene  its place in the order of the show, from 0
int first_beat(std::size_t scene);

/// Length of the show, beats.
constexpr int show_beats = 384;

} // namespace scores
