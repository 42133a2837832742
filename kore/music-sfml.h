// SPDX-License-Identifier: MIT
#pragma once

#include "kore/music.h"
#include "kore/soundstream.h"

#include <optional>

namespace kore {

/// Streams the music with SFML, on a thread of the library's own. The device is opened once there is a file to play,
/// meanwhile; without one, or where it does not answer in time, the player remains silent.
class MusicSFML final : public Music {
public:
    MusicSFML() = default;
    ~MusicSFML() { Cleanup(); }
    MusicSFML(MusicSFML const&) = delete;
    MusicSFML& operator=(MusicSFML const&) = delete;

    /// Deliberate: a file at another rate is reported as a failure, stays open and plays at its own rate.
    bool LoadFromFile(std::string const& file, int const& frequency) override;

    /// Deliberate: the visualizer is stored and never fed.
    void SetVisualizer(std::shared_ptr<MusicVisualizer> v) override;

    /// The first call after a file was loaded waits for its stream, and says on standard error where there is none.
    void Play() override;
    void Pause() override;

    /// Deliberate: always false; nothing waits for the music's end.
    bool Eof() override { return end_of_file; }

    /// Deliberate: always true, also when no file could be opened.
    bool Ready() override { return true; }

    /// Releases the visualizer.
    void Cleanup();

    /// Playing position, seconds; 0 while silent.
    float Position() const;

    /// Whether it is heard: neither paused, nor at its end, nor silent.
    bool Playing() const;

    /// Whether the sound library does not come back: the process must then end without it.
    bool Hangs() const { return stream && stream->Hangs(); }

private:
    /// The stream that is to be heard; nullptr for none.
    sf::Music* Stream() const { return stream ? stream->Get() : nullptr; }

    bool end_of_file = false;
    std::optional<SoundStream> stream; ///< empty without a file
    bool waited = false;               ///< for the stream
    std::shared_ptr<MusicVisualizer> visualizer;
};

} // namespace kore
