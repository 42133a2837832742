#include "show/show.h"

std::shared_ptr<kore::AscModel> models;

void init_demo(kore::Demo& demo, std::shared_ptr<kore::Music> /*music*/, float const& beat) {
    models = std::make_shared<kore::AscModel>("data/");

    // The running order, and each scene's length in beats.
    demo.AddScene(intro_scene(beat));    // 16
    demo.AddScene(gungirl_scene(beat));  // 48
    demo.AddScene(swapper_scene(beat));  // 96
    demo.AddScene(credits_scene(beat));  // 24
    demo.AddScene(wire_scene(beat));     // 72
    demo.AddScene(plasma_scene(beat));   // 32
    demo.AddScene(fountain_scene(beat)); // 64
    demo.AddScene(greets_scene(beat));   // 32
}
