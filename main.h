#pragma once

#include "kore/demo.h"
#include "kore/music.h"
#include "kore/statedata.h"
#include "runtime/beatclock.h"
#include "runtime/debugcamera.h"

#include <SFML/Window/Event.hpp>
#include <SFML/Window/Window.hpp>
#include <memory>
#include <optional>
#include <string>

/// Settings of the program, set by the command line only.
extern unsigned long video_fullscreen; ///< window style: 8 full screen, 4 a window with a close button
extern bool vsync;
extern int resolution_x; ///< pixels
extern int resolution_y;
extern int fps_limit_value;           ///< frames per second, used without vertical sync only; 0 for no limit
extern unsigned int video_depth;      ///< bits
extern unsigned int video_stencil;    ///< bits
extern unsigned int video_fsaa_level; ///< samples
extern bool music_enabled;
extern bool fps_counter;   ///< print the frame rate
extern bool mushroom_mode; ///< the debugging controls are live

/// Set when the window is asked to close; ends the loop.
extern bool quit;

/// @return the decimal number at the start of s; 0 where there is none
int my_atoi(std::string const& s);

/// Reads the command line into the settings; messages go to standard output.
/// @return the exit status, if the program ends here: 0 after the help text, 1 after an error
std::optional<int> read_command_line(int argc, char** argv);

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
    bool close = false; ///< Escape: the window closes at once
    float now = 0;      ///< clock reading of this frame, seconds
};

/// Acts on one event of the window. All keys but Escape are live in the debugging mode only.
void handle_event(Controls& controls, sf::Event const& event);

/// Deliberate: only without vertical sync; with it, the screen sets the pace.
/// @return frames per second; 0 for no limit
unsigned int frame_limit();

/// Whether the loop ends after a frame: the demo has finished, the program was asked to stop, or the beat count has
/// passed 9998, which takes about 75 minutes.
bool show_over(int beat_count, kore::Demo const& demo);

/// Plays the show in an open window until it ends.
void run_show(sf::Window& window);
