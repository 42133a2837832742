// SPDX-License-Identifier: MIT
#include "web/page/browserdriver.h"

// Emscripten's second names for its functions; its header of them is for OpenGL ES and does not go with gl.h.
extern "C" {
#define DECLARE(name) extern decltype(::gl##name) emscripten_gl##name;
FIXEDGL_DRIVER_CALLS(DECLARE)
#undef DECLARE
}

fixedgl::Driver browser_driver() {
    fixedgl::Driver driver{};
#define TAKE(name) driver.name = emscripten_gl##name;
    FIXEDGL_DRIVER_CALLS(TAKE)
#undef TAKE
    return driver;
}
