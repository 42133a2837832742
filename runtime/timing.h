// SPDX-License-Identifier: MIT
#pragma once

#include "kore/music-sfml.h"
#include "runtime/frametimes.h"
#include "runtime/pacer.h"
#include "runtime/settings.h"
#include "runtime/soundclock.h"

#include <SFML/System/Clock.hpp>

/// @param show_time  seconds
/// @param offset     milliseconds that the picture is later than the sound
/// @return the time that the picture is drawn for, seconds; not below 0
float picture_time(float show_time, int offset);

/// The clock of a show that plays, its frames' pace and its tie to the sound, as the settings have them. With the
/// defaults it is the plain clock.
class Timing {
public:
    /// @param music  must outlive this
    Timing(Settings const& settings, kore::MusicSFML const& music);

    /// Sets the clock to 0; to be called when the music was told to play. Where the sound is the clock, it waits first
    /// until that is heard, for half a second at most.
    void Begin();

    /// The clock's reading, seconds. Where the sound is the clock, it is led by that; the same value until it is read
    /// again.
    float Read();

    /// Listens to the sound; once a frame.
    /// @param show_time  by the last reading, with pauses taken off, seconds
    void Listen(float show_time, bool paused);

    /// The time that the picture is drawn for; see picture_time.
    float PictureTime(float show_time) const { return picture_time(show_time, my_settings.offset); }

    /// Waits until the frame that is drawn is due.
    void Wait();

    /// To be called when a frame is shown; keeps its time where there is a pace.
    void Shown() {
        if (my_settings.pace) frames.Shown(Seconds());
    }

    /// Prints the frame times on standard output, and how far the sound was from the picture.
    void Report() const;

private:
    double Seconds() const { return static_cast<double>(clock.getElapsedTime().asMicroseconds()) / 1e6; }

    Settings my_settings;
    kore::MusicSFML const& my_music;
    sf::Clock clock;
    Pacer pacer;
    SoundClock sound;
    FrameTimes frames;
};
