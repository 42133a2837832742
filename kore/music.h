// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

namespace kore {

class MusicVisualizer;

/// Plays the show's one piece of music.
class Music {
public:
    /// @param file       path of the music file
    /// @param frequency  expected sample rate, Hz
    /// @return true on failure, after one line on standard output
    virtual bool LoadFromFile(std::string const& file, int const& frequency) = 0;

    /// Replaces the receiver of the played samples.
    virtual void SetVisualizer(std::shared_ptr<MusicVisualizer> visualizer) = 0;

    /// Starts or resumes, or pauses; without a loaded file or a sound device nothing happens.
    virtual void Play() = 0;
    virtual void Pause() = 0;

    /// Whether the music has reached its end.
    virtual bool Eof() = 0;

    /// Whether Play and Pause may be called.
    virtual bool Ready() = 0;

protected:
    Music() = default;
    Music(Music const&) = default;
    Music& operator=(Music const&) = default;
    ~Music() = default;
};

} // namespace kore
