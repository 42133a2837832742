// SPDX-License-Identifier: MIT
#pragma once

#include "kore/demo.h"
#include "kore/music.h"
#include "kore/statedata.h"
#include "runtime/beatclock.h"
#include "runtime/commandline.h"
#include "runtime/debugcamera.h"
#include "runtime/desktopwindow.h"
#include "runtime/settings.h"

#include <SFML/Window/Event.hpp>
#include <SFML/Window/Window.hpp>
#include <memory>

/// Set when the window is asked to close; ends the loop.
extern bool quit;

/// Loads the show's music, if music is on; a failure is reported on standard output and the show goes on.
void music_init(std::shared_ptr<kore::Music>& music);

/// Plays or pauses the music, if music is on and the player ready.
void music_play(std::shared_ptr<kore::Music>& music, bool play);

/// Measures the frame rate over intervals of just above 0.1 s; with fps_counter prints every eleventh.
/// @param now  clock reading, seconds
/// @param fps  set at the end of an interval, frames per second
void frame_counter(float const& now, float& fps);

/// What the keys and the window's events act on.
struct Controls {
    kore::Demo& demo;
    std::shared_ptr<kore::Music>& music;
    PauseClock pauses;
    DebugCamera view;
    DesktopWindow* desktop = nullptr; ///< where the window behaves as the desktop's
    bool close = false;               ///< Escape: the window closes at once
    float now = 0;                    ///< clock reading of this frame, seconds
};

/// Acts on one event of the window. All keys but Escape are live in the debugging mode only; in a desktop window F11
/// and Alt-Enter switch full screen on and off.
void handle_event(Controls& controls, sf::Event const& event);

/// Deliberate: only without vertical sync; with it, the screen sets the pace.
/// @return frames per second; 0 for no limit
unsigned int frame_limit();

/// Whether the loop ends after a frame: the demo has finished, the program was asked to stop, or the beat count has
/// passed 9998, which takes about 75 minutes.
bool show_over(int beat_count, kore::Demo const& demo);

/// Plays the show in an open window until it ends.
/// @param desktop  how the window behaves on the desktop; nullptr for the exact one
void run_show(sf::Window& window, Settings const& settings, DesktopWindow* desktop);
