#pragma once

/// Whether there is an X display to open a window on. If there is, it stays in use until the program ends.
bool display_available();

/// Has the program end with one line and status 1, instead of a crash on some thread's way out, when the connection to
/// the display is lost in mid-show.
void end_quietly_when_display_is_lost();
