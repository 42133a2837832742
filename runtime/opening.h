// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/desktopwindow.h"
#include "runtime/monitors.h"
#include "runtime/settings.h"

#include <optional>
#include <vector>

/// @return false, after a line on standard error, where no window can be opened
bool window_possible();

/// Asks the display's OpenGL, with a context apart from the show's own.
/// @return false, after a line on standard error, where the show cannot be drawn
bool opengl_possible();

/// @return where the monitor that the settings name lies on the desktop; nothing, after a line on standard error, if
///         there is none
std::optional<Area> choose_monitor(Settings const& settings, std::vector<Monitor> const& monitors);

/// Falls back to a window, after a line on standard error, where the show cannot have the full screen.
void see_to_full_screen(Settings const& settings);

/// Opens the window that the command line and the settings ask for, with an OpenGL context.
/// @param monitor  where a window stands in the middle, or fills the screen; pixels of the desktop
/// @return how it behaves on the desktop, where that is asked for
std::optional<DesktopWindow> open_window(sf::Window& window, Settings const& settings, Area const& monitor);

/// Says in a line on standard error, where this computer draws without a graphics card, how to have it draw faster. To
/// be called with the OpenGL context.
void tell_of_slow_drawing();
