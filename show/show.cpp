// SPDX-License-Identifier: MIT
#include "show/show.h"

char const* const soundtrack_file = "data/rump2.ogg";

namespace {

// clang-format off
constexpr SceneEntry scenes[] = {
    // name        title         made by         moments                                 beats
    {"intro",      "Intro",      intro_scene,    {0.5f, 1.1f,  6.5f,  12.25f, 13}},   // 16
    {"gungirl",    "Gun Girl",   gungirl_scene,  {1.5f, 4.1f,  10.5f, 17,     30}},   // 48
    {"swapper",    "Swapper",    swapper_scene,  {1,    4.1f,  23,    55,     77}},   // 96
    {"credits",    "Credits",    credits_scene,  {4.5f, 5.5f,  8.2f,  14.5f, 16.2f}}, // 24
    {"tunnelgate", "Tunnelgate", wire_scene,     {0.5f, 10.5f, 30.5f, 52,    56.5f}}, // 72
    {"plasma",     "Plasma",     plasma_scene,   {0,    5.5f,  10,    20,    31.5f}}, // 32
    {"fountain",   "Fountain",   fountain_scene, {6,    20,    30,    37,    60}},    // 64
    {"greets",     "Greets",     greets_scene,   {0.3f, 1.5f,  5,     16.5f, 30}},    // 32
};
// clang-format on

} // namespace

std::span<SceneEntry const> running_order() { return scenes; }
