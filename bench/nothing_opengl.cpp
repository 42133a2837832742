// SPDX-License-Identifier: MIT
// OpenGL's entry points that do nothing, tests/support/glnone.cpp, want nothing.

#include "bench/nothing.h"

void nothing::open() {}
void nothing::end_frame() {}
