// SPDX-License-Identifier: MIT
#pragma once

#include "kore/soundstream.h"

#include <SFML/System/Time.hpp>
#include <optional>
#include <string>

/// The time to ask the sound library for, so that it begins on this very sample: it multiplies seconds, rate and
/// channels in float, and cuts.
/// @param sample  of each channel, counted from 0
/// @param rate    samples a second
sf::Time time_of_sample(long sample, unsigned int rate, unsigned int channels);

/// The music of a rehearsal: it can begin at any frame and be slower or faster, its pitch with it.
class RehearsalMusic {
public:
    /// Opens a soundtrack, anew if it has changed, and waits for the sound device, for a second and a half at most.
    /// @return "", or a line that says why there is no music
    std::string Open(std::string const& path);

    /// Whether there is music to be heard.
    bool Available() const { return stream && stream->Get(); }

    /// Plays on from a time of the show; one behind the music's end is silence.
    /// @param frame  at 60 a second
    /// @param speed  1 for as it was recorded
    void PlayFrom(int frame, double speed);
    void Pause();

    bool Playing() const;
    void Mute(bool mute);

    /// Playing position, seconds.
    double Position() const;

    /// Whether the sound library does not come back: the process must then end without it.
    bool Hangs() const { return stream && stream->Hangs(); }

private:
    std::optional<kore::SoundStream> stream;
    bool muted = false;
};
