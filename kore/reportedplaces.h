// SPDX-License-Identifier: MIT
#pragma once

#include "kore/report.h"

/// The places that messages name. Deliberate: unit, line and function are fixed texts. Whoever reads the show's output,
/// people and scripts, knows them by heart, so they stay when the source around them moves or is split; they are not
/// where the code stands today.
namespace kore::places {

// Error lines on standard output.
inline constexpr Place music_init{"main.cpp", 95, "music_init"};
inline constexpr Place music_not_opened{"kore/music-sfml.cpp", 36, "LoadFromFile"};
inline constexpr Place music_at_another_rate{"kore/music-sfml.cpp", 48, "LoadFromFile"};

// Assertions.
inline constexpr Place broken_model{
    "effekt/brokenmodel.cpp", 21, "effect::BrokenModel::BrokenModel(kore::AscModel_ptr, const string&, const string&)"};
inline constexpr Place broken_model_reset{
    "effekt/brokenmodel.cpp", 190, "void effect::BrokenModel::ResetValues(effect::BrokenModel::ValueSetInterface*)"};
inline constexpr Place model_swapper{"effekt/modelswapper.cpp", 19,
                                     "effect::ModelSwapper::ModelSwapper(const string&)"};

/// What a constructor asserts that finds its model in the library or loads it.
struct ModelChecks {
    Place given_file; ///< the file that was named loads
    Place own_file;   ///< the file named like the model loads
    Place model;
    Place wireframe;
};
constexpr ModelChecks model_checks(char const* unit, char const* function) {
    return {{unit, 23, function}, {unit, 25, function}, {unit, 27, function}, {unit, 28, function}};
}
inline constexpr ModelChecks simple_model = model_checks(
    "effekt/simplemodel.cpp", "effect::SimpleModel::SimpleModel(kore::AscModel_ptr, const string&, const string&)");
inline constexpr ModelChecks show_model = model_checks(
    "effekt/showmodel.cpp", "effect::ShowModel::ShowModel(kore::AscModel_ptr, const string&, const string&)");

/// Three assertions, of which only unit and function are fixed.
constexpr Place gen_list_full(int line) {
    return {"kore/ascmodel.cpp", line,
            "int kore::AscModel::GenListFull(const string&, int, int, int, const GLfloat (*)[3], const int (*)[3], "
            "const int (*)[3])"};
}

} // namespace kore::places
