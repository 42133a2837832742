// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/area.h"

/// What a client says to the window manager, as the Extended Window Manager Hints have it; and what it does itself
/// where there is none. Windows are X's, of the display that display_connection() is connected to.
namespace windowmanager {

/// Whether there is one that makes windows fill the screen.
bool can_fill_screen();

/// Asks it to have a window fill the monitor that it lies on, or no longer.
void fill_screen(unsigned long window, bool fill);

/// Places a window, its frame included where there is one, in the middle of an area; one that is too large begins
/// where the area does.
/// @param width  of the picture, pixels
void place_in_middle(unsigned long window, int width, int height, Area const& area);

/// Places a window where no window manager does, above all others and with the keyboard.
void place_on_top(unsigned long window, Area const& area);

/// @return what panels leave of the desktop for windows; all of it where nothing is known
Area work_area(Area const& desktop);

/// What the frame takes of a window's place.
struct Frame {
    int left = 0;
    int right = 0;
    int top = 0;
    int bottom = 0;
};
Frame frame_of(unsigned long window);

} // namespace windowmanager
