// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// Asks the display's OpenGL for what the show cannot do without: a visual, a context, and display lists. It does so on
/// a connection and in a context of its own, which are gone afterwards; what the driver says on standard error
/// meanwhile is discarded. To be called while there is but one thread.
/// @return "" if all is there; else a line that says what is not
std::string what_opengl_lacks();
