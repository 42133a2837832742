// SPDX-License-Identifier: MIT
#pragma once

#include "kore/demo.h"
#include "show/show.h"
#include "tools/record/beats.h"

#include <span>
#include <string>
#include <vector>

/// One scene's place in the show.
struct ScenePlace {
    std::string name;                ///< short, for example "gungirl"
    std::string title;               ///< for example "Gun Girl"
    int first;                       ///< beat of the show
    int length;                      ///< beats
    std::vector<Millibeats> moments; ///< of the scene, see SceneEntry

    Millibeats Begin() const { return first * one_beat; }
    Millibeats End() const { return (first + length) * one_beat; }
};

using Timetable = std::vector<ScenePlace>;

/// When each scene of a demo plays.
/// @param scenes  one entry for each of them, in their order
Timetable make_timetable(kore::Demo& demo, std::span<SceneEntry const> scenes = running_order());

/// @param name  a name or a title, in any case
/// @return null if there is no such scene
ScenePlace const* find_scene(Timetable const& timetable, std::string const& name);

/// @return the scene that plays at a moment of the show; null past the end
ScenePlace const* scene_at(Timetable const& timetable, Millibeats at);

/// The names, separated by commas and spaces.
std::string scene_list(Timetable const& timetable);
