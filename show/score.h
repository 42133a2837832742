// SPDX-License-Identifier: MIT
#pragma once

#include "effekt/blinker.h"
#include "effekt/flashbackground.h"
#include "kore/camera.h"
#include "kore/enabler.h"
#include "kore/scene.h"

#include <memory>
#include <span>
#include <vector>

/// How a scene is written: rows of what happens on which beat, in the order in which they are added.

using Blink = kore::BlinkerInterface;

/// The last argument of an enabler.
constexpr bool in_camera_view = true;
constexpr bool fixed_view = false;

/// Grey levels of an effect's main colour; the contrasting one follows from it.
constexpr int black = 0;
constexpr int white = 1;

/// Schedules one event, on the first frame within two beats.
/// @param at    seconds since the scene's first beat
/// @param beat  length of one beat, seconds
void add_blink(effect::Blinker& blinker, float at, Blink::BlinkerType type, int value, float beat);

/// Which show an event belongs to: the full one, the calm one (effect::Look::calm), or both.
enum class Show { Both, Full, Calm };

/// One event of a blinker.
struct BlinkRow {
    float at; ///< beats since the scene's first beat
    Blink::BlinkerType type;
    int value;
    Show in = Show::Both;
};

/// Schedules in their order the rows that belong to the show as effect::look has it.
/// @param beat  length of one beat, seconds
void add_blinks(effect::Blinker& blinker, std::span<BlinkRow const> rows, float beat);

/// One line of a scene's timeline.
struct Cue {
    std::shared_ptr<kore::Entity> who;
    int from;  ///< first beat
    int beats; ///< how long
    bool view; ///< in_camera_view or fixed_view
    std::vector<std::shared_ptr<kore::Mutator>> moved_by = {};
};

/// Adds cues in their order, which is the order of updating and drawing.
void add_cues(kore::Scene& scene, std::span<Cue const> cues, float beat);

/// A cue's enabler by itself, as a camera needs it.
std::shared_ptr<kore::Enabler> make_enabler(Cue const& cue, float beat);

/// The wall far behind every scene; a flip takes two beats.
/// @param color  black or white tiles
std::shared_ptr<effect::FlashBackground> make_background(int color, float beat);
