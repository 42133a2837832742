// SPDX-License-Identifier: MIT
// The C library's generator for the browser's show, instead of Emscripten's own.

#include "web/page/additiverandom.h"

#include <cstdlib>

namespace {

AdditiveRandom generator;

} // namespace

extern "C" {

void srand(unsigned int seed) { generator.Seed(seed); }
int rand() { return generator.Next(); }

} // extern "C"
