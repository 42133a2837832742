// SPDX-License-Identifier: MIT
#include "kore/soundstream.h"

#include "kore/soundtrackfile.h"
#include "kore/soundwords.h"

#include <AL/alc.h>
#include <SFML/Audio/InputSoundFile.hpp>
#include <SFML/Audio/Music.hpp>
#include <system_error>
#include <thread>
#include <utility>

namespace kore {

namespace {

/// @return of the file, Hz; 0 where it cannot be opened
unsigned int rate_of(std::string const& file) {
    sf::InputSoundFile sound;
    return may_be_soundtrack(file) && sound.openFromFile(file) ? sound.getSampleRate() : 0;
}

/// Whether sound can be played, found out by opening the default output and closing it again. A stream without a device
/// would complain, spin once it is told to play, and fill standard error.
bool device_can_be_had() {
    ALCdevice* const device = alcOpenDevice(nullptr);
    return device && alcCloseDevice(device);
}

} // namespace

SoundStream::SoundStream(std::string const& file) : shared(std::make_shared<Shared>()) {
    silence_sound_libraries();
    try {
        std::thread([state = shared, file] { Open(*state, file); }).detach();
    } catch (std::system_error const&) { // no thread can be had
        shared->rate = rate_of(file);
        shared->result = Result::NoDevice;
        shared->has_rate = shared->is_done = true;
    }
}

SoundStream::~SoundStream() { Wait(); }

void SoundStream::Open(Shared& shared, std::string const& file) {
    unsigned int const rate = rate_of(file);
    {
        std::lock_guard const lock(shared.mutex);
        shared.rate = rate;
        shared.has_rate = true;
    }
    shared.changed.notify_all();
    std::unique_ptr<sf::Music> stream;
    Result result = rate == 0 ? Result::NoFile : Result::NoDevice;
    if (rate != 0 && device_can_be_had()) {
        stream = std::make_unique<sf::Music>();
        result = stream->openFromFile(file) ? Result::Ready : Result::NoFile;
        if (result == Result::NoFile) stream.reset();
    }
    std::lock_guard const lock(shared.mutex);
    shared.stream = std::move(stream);
    shared.result = result;
    shared.is_done = true;
    shared.changed.notify_all();
}

unsigned int SoundStream::Rate() {
    std::unique_lock lock(shared->mutex);
    shared->changed.wait_until(lock, begun + longest, [this] { return shared->has_rate; });
    return shared->rate;
}

SoundStream::Result SoundStream::Wait() {
    std::unique_lock lock(shared->mutex);
    if (!shared->changed.wait_until(lock, begun + longest, [this] { return shared->is_done; })) {
        return Result::NoAnswer;
    }
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
