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

/// Opens the sound device and a stream on it, on a thread of its own: a sound server may not answer, and nothing that
/// asks it comes back then.
class SoundStream {
public:
    enum class Result {
        Ready,
        NoDevice,
        NoAnswer, ///< in time; what comes later is dropped
        NoFile,
    };

    /// Begins to open.
    explicit SoundStream(std::string const& file);

    /// Waits for the thread, unless it hangs.
    ~SoundStream();
    SoundStream(SoundStream const&) = delete;
    SoundStream& operator=(SoundStream const&) = delete;

    /// What came of it, which is waited for until a second has passed since the beginning.
    Result Wait();

    /// The stream, once it is ready; nullptr otherwise.
    sf::Music* Get() const { return ready.get(); }

    /// Whether the thread has not come back. The end of the process must then not wait for it.
    bool Hangs() const;

private:
    /// What both threads hold.
    struct Shared {
        std::mutex mutex;
        std::condition_variable done;
        bool is_done = false;
        Result result = Result::NoAnswer;
        std::unique_ptr<sf::Music> stream;
    };
    static constexpr std::chrono::seconds longest{1}; ///< since the beginning
    static void Open(std::shared_ptr<Shared> const& shared, std::string const& file);

    std::shared_ptr<Shared> shared;
    std::chrono::steady_clock::time_point const begun = std::chrono::steady_clock::now();
    std::unique_ptr<sf::Music> ready;
};

} // namespace kore
