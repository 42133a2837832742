// SPDX-License-Identifier: MIT
#pragma once

#include "kore/ascmodel.h"
#include "kore/blinkerinterface.h"
#include "kore/demo.h"
#include "tools/record/beats.h"

#include <string>
#include <vector>

/// When one entity is on.
struct TimelineCue {
    std::string kind;  ///< the class of the entity, for example "SimpleModel"
    std::string model; ///< what it shows; "" where it shows no model by name
    int from;          ///< beat of the show
    int beats;
    int lane; ///< from 0; no two cues of a lane are on at once

    std::string const& Label() const { return model.empty() ? kind : model; }
};

/// One event of a blinker.
struct TimelineEvent {
    Millibeats at; ///< of the show
    kore::BlinkerInterface::BlinkerType type;
    int value;
};

struct TimelineScene {
    std::string title;
    int first; ///< beat of the show
    int beats;
    std::vector<TimelineCue> cues;     ///< in the order of updating and drawing
    std::vector<TimelineEvent> events; ///< of each blinker in turn, in the order scheduled
    int lanes;                         ///< that the cues take

    int End() const { return first + beats; }
};

/// What happens when in a show.
struct Timeline {
    std::vector<TimelineScene> scenes;

    /// Length of the show, beats.
    int Beats() const { return scenes.empty() ? 0 : scenes.back().End(); }

    /// The scene that plays on a beat of the show; the last one after its end. There must be a scene.
    TimelineScene const& SceneAt(int beat) const;

    /// The classes of the cues, each once, in order of appearance.
    std::vector<std::string> Kinds() const;
};

/// The types of events, in the order of their numbers.
struct EventKind {
    kore::BlinkerInterface::BlinkerType type;
    char const* name;
    unsigned int color; ///< 0xRRGGBB
};
inline constexpr EventKind event_kinds[] = {
    {kore::BlinkerInterface::Invert, "invert", 0xf2c14e},  {kore::BlinkerInterface::Strobe, "strobe", 0xf4f6fa},
    {kore::BlinkerInterface::Wireframe, "wire", 0x5cc8e8}, {kore::BlinkerInterface::Break, "break", 0xff6b6b},
    {kore::BlinkerInterface::Flip, "flip", 0xb794f6},      {kore::BlinkerInterface::Solid, "solid", 0x6fdc8c},
};

/// The colour of the cues of a class, 0xRRGGBB.
/// @param kind  its place in Timeline::Kinds
unsigned int cue_color(std::size_t kind);

/// Reads a show's timeline off its own objects.
/// @param models  tells the names of models; may be null
/// @param beat    length of one beat, seconds
Timeline make_timeline(kore::Demo& demo, kore::AscModel const* models, float beat);
