// SPDX-License-Identifier: MIT
#pragma once

#include "web/gl/driver.h"

/// WebGL 2 as Emscripten offers it. Its functions of the plain names are not used: the layer has those.
fixedgl::Driver browser_driver();
