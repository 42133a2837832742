#pragma once

#include "kore/ascmodel.h"
#include "kore/demo.h"
#include "kore/music.h"
#include "kore/scene.h"

#include <memory>

/// The model library that every scene of the show takes its meshes from.
extern std::shared_ptr<kore::AscModel> models;

/// Makes the model library over "data/" and fills the demo with the show's eight scenes; needs a current OpenGL
/// context. A mesh that a scene cannot do without and that cannot be had ends the program with an assertion report.
/// @param music  not used
/// @param beat   length of one beat, seconds
void init_demo(kore::Demo& demo, std::shared_ptr<kore::Music> music, float const& beat);

/// The scenes, in the order of the show. Each needs the model library.
/// @param beat  length of one beat, seconds
std::shared_ptr<kore::Scene> intro_scene(float const& beat);
std::shared_ptr<kore::Scene> gungirl_scene(float const& beat);
std::shared_ptr<kore::Scene> swapper_scene(float const& beat);
std::shared_ptr<kore::Scene> credits_scene(float const& beat);
std::shared_ptr<kore::Scene> wire_scene(float const& beat);
std::shared_ptr<kore::Scene> plasma_scene(float const& beat);
std::shared_ptr<kore::Scene> fountain_scene(float const& beat);
std::shared_ptr<kore::Scene> greets_scene(float const& beat);
