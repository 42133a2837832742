// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/area.h"

#include <string>
#include <vector>

/// A screen of the desktop.
struct Monitor {
    std::string name;
    Area area; ///< on the desktop, pixels
    bool primary = false;
};

/// Whether the display can tell monitors and video modes: whether it has RandR, version 1.2 at least.
bool has_monitors();

/// @return the desktop's monitors from left to right, at least one; the whole desktop where it cannot tell
std::vector<Monitor> find_monitors();

/// @param number  counted from 1; 0 for the primary one, or the first
/// @return nullptr where there is none
Monitor const* find_monitor(std::vector<Monitor> const& monitors, int number);

/// Prints the monitors, one a line, on standard output.
void print_monitors(std::vector<Monitor> const& monitors);

/// Whether the screen can be switched to a video mode: one that is offered and not larger than the desktop, which does
/// not grow with it.
bool mode_can_be_set(int width, int height);
