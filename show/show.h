// SPDX-License-Identifier: MIT
#pragma once

#include "kore/ascmodel.h"
#include "kore/demo.h"
#include "kore/music.h"
#include "kore/scene.h"

#include <array>
#include <memory>
#include <span>

// A show is its running order, its soundtrack and its mesh files (show/datacheck.h). A program that links those of
// another show plays, records and rehearses that one; see examples/own-show.

/// The music, from the folder that holds "data/".
extern char const* const soundtrack_file;

/// The model library that every scene of the show takes its meshes from.
extern std::shared_ptr<kore::AscModel> models;

/// Makes the model library over "data/" and fills the demo with the scenes of the running order; needs a current OpenGL
/// context. A mesh that a scene needs and that cannot be loaded ends the program with an assertion report.
/// @param music  not used
/// @param beat   length of one beat, seconds
void init_demo(kore::Demo& demo, std::shared_ptr<kore::Music> music, float const& beat);

/// Makes one scene; needs the model library.
/// @param beat  length of one beat, seconds
using SceneFunction = std::shared_ptr<kore::Scene> (*)(float const& beat);

std::shared_ptr<kore::Scene> intro_scene(float const& beat);
std::shared_ptr<kore::Scene> gungirl_scene(float const& beat);
std::shared_ptr<kore::Scene> swapper_scene(float const& beat);
std::shared_ptr<kore::Scene> credits_scene(float const& beat);
std::shared_ptr<kore::Scene> wire_scene(float const& beat); // in show/tunnelgate_scene.cpp
std::shared_ptr<kore::Scene> plasma_scene(float const& beat);
std::shared_ptr<kore::Scene> fountain_scene(float const& beat);
std::shared_ptr<kore::Scene> greets_scene(float const& beat);

/// One scene of the running order.
struct SceneEntry {
    char const* name;  ///< short, for command lines and file names
    char const* title; ///< what the scene calls itself
    SceneFunction make;
    std::array<float, 5> moments; ///< beats of the scene that show it at its best, for contact sheets
};

/// The scenes of the show, first to last.
std::span<SceneEntry const> running_order();

/// The title that the running order gives to a scene. One that it does not list ends the program with an assertion
/// report.
char const* title_of(SceneFunction make);
