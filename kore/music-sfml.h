#pragma once

#include "kore/music.h"

namespace sf {
class Music;
}

namespace kore {

/// Streams the music with SFML, on a thread of the library's own. Without a sound device it checks the file and remains
/// silent.
class MusicSFML final : public Music {
public:
    MusicSFML();
    ~MusicSFML();
    MusicSFML(MusicSFML const&) = delete;
    MusicSFML& operator=(MusicSFML const&) = delete;

    /// Deliberate: a file at another rate is reported as a failure, stays open and plays at its own rate.
    bool LoadFromFile(std::string const& file, int const& frequency) override;

    /// Deliberate: the visualizer is stored and never fed.
    void SetVisualizer(std::shared_ptr<MusicVisualizer> v) override;

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

private:
    /// @param rate  receives the file's sample rate, Hz
    bool Open(std::string const& file, unsigned int& rate);

    bool end_of_file = false;
    std::unique_ptr<sf::Music> stream; ///< empty without a sound device
    bool playable = false;             ///< the stream holds an open file
    std::shared_ptr<MusicVisualizer> visualizer;
};

} // namespace kore
