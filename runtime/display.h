// SPDX-License-Identifier: MIT
#pragma once

// Xlib's header defines words such as None as macros, so it stays in the units.
struct _XDisplay; // NOLINT(*-reserved-identifier)

/// Whether there is an X display to open a window on. If there is, it stays in use until the program ends.
bool display_available();

/// The connection to that display, beside the window library's own; nullptr where there is no display.
_XDisplay* display_connection();

/// Whether the display, which must be available, can draw OpenGL in a window.
bool display_has_opengl();

/// Whether its windows have colours enough. The window library makes none on a display of 15 bits a pixel.
bool display_deep_enough();

/// @return bits of a pixel that a window of the show asks for: 32, as its pictures have them, but for a display whose
///         windows are less deep
unsigned int display_depth();

/// Has the program end with one line and status 1 when a connection to the display is lost, or the display refuses a
/// request. To be called before the first connection.
void own_display_errors();

/// What is told then.
inline constexpr char const* display_lost_line = "The display is lost.\n";

/// Whether the connection has been lost, which may not have been noticed yet; waits a moment for it. Safe in signal
/// handlers.
bool display_is_lost();
