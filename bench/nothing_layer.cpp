// SPDX-License-Identifier: MIT
// The layer of web/gl on a driver that does nothing.

#include "bench/nothing.h"
#include "runtime/frame.h"
#include "tests/web/nodriver.h"
#include "web/gl/fixedgl.h"

void nothing::open() {
    fixedgl::open(nodriver::make());
    init_gl();
}

void nothing::end_frame() { fixedgl::flush(); }
