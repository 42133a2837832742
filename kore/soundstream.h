// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <string>

namespace sf {
class Music;
}

namespace kore {

/// Opens a soundtrack, the sound device and a stream on it, on a thread of its own: a damaged file may be searched for
/// long, a sound server may not answer, and nothing that asks it comes back then. For each of the two there is a
/// second and a half from the beginning; what comes later is dropped.
class SoundStream {
public:
    enum class Result {
        Ready,
        NoDevice,
        NoAnswer,
        NoFile,
    };

    /// Begins to open.
    explicit SoundStream(std::string const& file);

    /// Waits for the thread, unless it hangs.
    ~SoundStream();
    SoundStream(SoundStream const&) = delete;
    SoundStream& operator=(SoundStream const&) = delete;

    /// @return the soundtrack's rate, Hz, which is waited for; 0 where the file cannot be opened
    unsigned int Rate();

    /// What came of it, which is waited for.
    Result Wait();

    /// The stream, once it is ready; nullptr otherwise.
    sf::Music* Get() const { return ready.get(); }

    /// Whether the thread has not come back. The end of the process must then not wait for it.
    bool Hangs() const;

private:
    /// What both threads hold.
    struct Shared {
        std::mutex mutex;
        std::condition_variable changed;
        bool has_rate = false;
        unsigned int rate = 0; ///< Hz
        bool is_done = false;
        Result result = Result::NoAnswer;
        std::unique_ptr<sf::Music> stream;
    };
    static void Open(Shared& shared, std::string const& file);

    static constexpr std::chrono::milliseconds longest{1500}; ///< since the beginning

    std::shared_ptr<Shared> shared;
    std::chrono::steady_clock::time_point const begun = std::chrono::steady_clock::now();
    std::unique_ptr<sf::Music> ready;
};

} // namespace kore
