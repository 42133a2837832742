// SPDX-License-Identifier: MIT
#pragma once

namespace kore {

/// Receives blocks of played samples and turns them into data to show.
class MusicVisualizer {
public:
    /// @param data    one block of audio data, bytes
    /// @param length  bytes in the block
    virtual void Process(char const* data, unsigned int length) = 0;

    /// @return the latest result; its length is the implementation's
    virtual float const* GetOutput() const = 0;

protected:
    MusicVisualizer() = default;
    MusicVisualizer(MusicVisualizer const&) = default;
    MusicVisualizer& operator=(MusicVisualizer const&) = default;
    ~MusicVisualizer() = default;
};

} // namespace kore
