#pragma once

// Xlib's header defines words such as None as macros, so it stays in the units.
struct _XDisplay; // NOLINT(*-reserved-identifier)

/// Whether there is an X display to open a window on. If there is, it stays in use until the program ends.
bool display_available();

/// The connection to that display, beside the window library's own; nullptr where there is no display.
_XDisplay* display_connection();

/// Whether the display, which must be available, can draw OpenGL in a window.
bool display_has_opengl();

/// @return bits of a pixel that a window of the show asks for: 32, as its pictures have them, but for a display whose
///         windows are less deep
unsigned int display_depth();

/// Has the program end with one line and status 1, instead of a crash on some thread's way out, when the connection to
/// the display is lost in mid-show.
void end_quietly_when_display_is_lost();
