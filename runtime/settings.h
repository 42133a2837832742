// SPDX-License-Identifier: MIT
#pragma once

/// What is the viewer's choice besides the command line. With the defaults the program is the exact one.
struct Settings {
    bool check = false; ///< the data is looked through before the window opens, and a fault in it ends the program

    /// The window behaves as desktops have it: full screen leaves the video mode alone, a window opens whole, in the
    /// middle and can be resized; see DesktopWindow. The screen stays awake.
    bool desktop = false;
    bool stretch = false; ///< in a desktop window: the picture fills it, instead of staying 4:3
    int monitor = 0;      ///< that a desktop window opens on, counted from 1, left to right; 0 for the primary one
    bool list_monitors = false;

    /// Frames are held to 60 a second by deadlines where the screen does not hold them; and to the command line's
    /// limit, which is a sleep otherwise.
    bool pace = false;
    bool sound_clock = false; ///< the show's time follows the sound
    int offset = 0;           ///< milliseconds that the picture is later than the sound
};
