#include "kore/soundstream.h"

#include "kore/soundwords.h"

#include <AL/alc.h>
#include <SFML/Audio/Music.hpp>
#include <system_error>
#include <thread>
#include <utility>

namespace kore {

SoundStream::SoundStream(std::string const& file) : shared(std::make_shared<Shared>()) {
    silence_sound_libraries();
    try {
        std::thread([state = shared, file] { Open(state, file); }).detach();
    } catch (std::system_error const&) { // no thread can be had
        shared->result = Result::NoDevice;
        shared->is_done = true;
    }
}

namespace {

/// Whether sound can be played, found out by opening the default output and closing it again. A stream without a device
/// would complain, spin once it is told to play, and fill standard error.
bool device_can_be_had() {
    ALCdevice* const device = alcOpenDevice(nullptr);
    return device && alcCloseDevice(device);
}

} // namespace

void SoundStream::Open(std::shared_ptr<Shared> const& shared, std::string const& file) {
    std::unique_ptr<sf::Music> stream;
    Result result = Result::NoDevice;
    if (device_can_be_had()) {
        stream = std::make_unique<sf::Music>();
        result = stream->openFromFile(file) ? Result::Ready : Result::NoFile;
        if (result == Result::NoFile) stream.reset();
    }
    std::lock_guard const lock(shared->mutex);
    shared->stream = std::move(stream);
    shared->result = result;
    shared->is_done = true;
    shared->done.notify_all();
}

SoundStream::~SoundStream() { Wait(); }

SoundStream::Result SoundStream::Wait() {
    std::unique_lock lock(shared->mutex);
    if (!shared->done.wait_until(lock, begun + longest, [this] { return shared->is_done; })) return Result::NoAnswer;
    if (shared->stream) {
        ready = std::move(shared->stream);
        let_sound_say_a_line();
    }
    return shared->result;
}

bool SoundStream::Hangs() const {
    std::lock_guard const lock(shared->mutex);
    return !shared->is_done;
}

} // namespace kore
