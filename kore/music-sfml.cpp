// SPDX-License-Identifier: MIT
#include "kore/music-sfml.h"

#include "kore/reportedplaces.h"

#include <SFML/Audio/Music.hpp>
#include <iostream>
#include <utility>

namespace kore {

bool MusicSFML::LoadFromFile(std::string const& file, int const& frequency) {
    waited = false;
    stream.emplace(file);
    unsigned int const rate = stream->Rate();
    if (rate == 0) {
        report_error(places::music_not_opened, "Failed to open music from file " + file);
        waited = true; // in vain
        return true;
    }
    if (rate != static_cast<unsigned int>(frequency)) {
        report_error(places::music_at_another_rate, "Requested frequency (" + std::to_string(frequency) +
                                                        ") differs from audio file frequency (" + std::to_string(rate) +
                                                        ").");
        return true;
    }
    return false;
}

void MusicSFML::SetVisualizer(std::shared_ptr<MusicVisualizer> v) { visualizer = std::move(v); }

void MusicSFML::Play() {
    if (stream && !waited) {
        waited = true;
        auto const result = stream->Wait();
        if (result == SoundStream::Result::NoDevice) std::cerr << "No sound device; the show is silent." << std::endl;
        if (result == SoundStream::Result::NoAnswer) {
            std::cerr << "The sound device does not answer; the show is silent." << std::endl;
        }
    }
    if (Stream()) Stream()->play();
}

void MusicSFML::Pause() {
    if (Stream()) Stream()->pause();
}

void MusicSFML::Cleanup() { visualizer.reset(); }

float MusicSFML::Position() const { return Stream() ? Stream()->getPlayingOffset().asSeconds() : 0.0f; }

bool MusicSFML::Playing() const { return Stream() && Stream()->getStatus() == sf::SoundSource::Playing; }

} // namespace kore
