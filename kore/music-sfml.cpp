#include "kore/music-sfml.h"

#include "kore/reportedplaces.h"
#include "kore/sounddevice.h"

#include <SFML/Audio/InputSoundFile.hpp>
#include <SFML/Audio/Music.hpp>
#include <iostream>
#include <utility>

namespace kore {

MusicSFML::MusicSFML() {
    if (sound_device_available()) {
        stream = std::make_unique<sf::Music>();
    } else {
        std::cerr << "No sound device; the show is silent." << std::endl;
    }
}

MusicSFML::~MusicSFML() { Cleanup(); }

bool MusicSFML::Open(std::string const& file, unsigned int& rate) {
    if (stream) {
        playable = stream->openFromFile(file);
        if (playable) rate = stream->getSampleRate();
        return playable;
    }
    sf::InputSoundFile sound;
    if (!sound.openFromFile(file)) return false;
    rate = sound.getSampleRate();
    return true;
}

bool MusicSFML::LoadFromFile(std::string const& file, int const& frequency) {
    unsigned int rate = 0;
    if (!Open(file, rate)) {
        report_error(places::music_not_opened, "Failed to open music from file " + file);
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
    if (playable) stream->play();
}

void MusicSFML::Pause() {
    if (playable) stream->pause();
}

void MusicSFML::Cleanup() { visualizer.reset(); }

float MusicSFML::Position() const { return playable ? stream->getPlayingOffset().asSeconds() : 0.0f; }

bool MusicSFML::Playing() const { return playable && stream->getStatus() == sf::SoundSource::Playing; }

} // namespace kore
