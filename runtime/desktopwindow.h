// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/area.h"
#include "runtime/picture.h"

namespace sf {
class Window;
}

/// The show's window as desktops have it. It fills one monitor without a switch of the video mode, or stands whole in
/// the middle of it and can be resized; the pointer is hidden over it.
class DesktopWindow {
public:
    /// Places the window.
    /// @param window   an open, resizable one, which must outlive this
    /// @param monitor  where it shall be, pixels of the desktop
    /// @param width    of the picture while it is a window, pixels; 0 for one that suits the monitor. What does not fit
    ///                 the monitor is made smaller.
    DesktopWindow(sf::Window& window, Area const& monitor, int width, bool stretch);

    void SetFullScreen(bool full);
    void ToggleFullScreen() { SetFullScreen(!full_screen); }

    /// Fits the picture to the window, which has this size now, in pixels.
    void Resized(unsigned int width, unsigned int height);

    /// To be called after the frame is drawn: blackens what lies beside the picture.
    void Frame() const { picture.Frame(); }

private:
    void StandInTheMiddle() const;

    sf::Window& my_window;
    Area my_monitor;
    int my_width;
    Picture picture;
    bool full_screen = false;
};

/// @param width  that is asked for, pixels; 0 for three quarters of the room
/// @param room   that a window may take
/// @return the picture of a window, in the middle of the room: 4:3 to the pixel, and so a multiple of 4 wide
Area window_picture(int width, Area const& room);
