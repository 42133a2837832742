#pragma once

#include "kore/demo.h"
#include "tools/record/beats.h"

#include <string>
#include <vector>

/// One scene's place in the show.
struct ScenePlace {
    std::string name; ///< the scene's own, for example "Gun Girl"
    std::string stem; ///< the short one of command lines and file names, for example "gungirl"
    int first;        ///< beat of the show
    int length;       ///< beats

    Millibeats Begin() const { return first * one_beat; }
    Millibeats End() const { return (first + length) * one_beat; }
};

using RunningOrder = std::vector<ScenePlace>;

/// The scenes of a loaded show.
RunningOrder running_order(kore::Demo& demo);

/// @param name  a name or a stem, in any case
/// @return null where no scene is called so
ScenePlace const* find_scene(RunningOrder const& order, std::string const& name);

/// @return the scene that plays at a moment of the show; null past the end
ScenePlace const* scene_at(RunningOrder const& order, Millibeats at);

/// The stems, separated by commas and blanks.
std::string scene_list(RunningOrder const& order);
