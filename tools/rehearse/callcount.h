// SPDX-License-Identifier: MIT
#pragma once

/// How many calls of OpenGL the show has issued so far. A program that links this has them counted on their way to the
/// driver; see tools/rehearse/CMakeLists.txt.
unsigned long issued_calls();
