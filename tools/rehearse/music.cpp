// SPDX-License-Identifier: MIT
#include "tools/rehearse/music.h"

#include "tools/record/beats.h"

#include <SFML/Audio/Music.hpp>

sf::Time time_of_sample(long sample, unsigned int rate, unsigned int channels) {
    sf::Time at;
    for (double const part : {0.5, 0.25, 0.75, 0.125, 0.875, 0.0, 1.0}) {
        at = sf::microseconds(static_cast<sf::Int64>((static_cast<double>(sample) + part) * 1e6 / rate));
        float const frames = at.asSeconds() * static_cast<float>(rate);
        if (static_cast<long>(frames * static_cast<float>(channels)) / static_cast<long>(channels) == sample) break;
    }
    return at;
}

std::string RehearsalMusic::Open(std::string const& path) {
    using Result = kore::SoundStream::Result;
    stream.reset();
    stream.emplace(path);
    Result const result = stream->Wait();
    Mute(muted);
    switch (result) {
    case Result::Ready:
        return "";
    case Result::NoFile:
        return path + " cannot be played";
    case Result::NoDevice:
        return "no sound device; the show is silent";
    case Result::NoAnswer:
        break;
    }
    return "the sound device does not answer; the show is silent";
}

void RehearsalMusic::PlayFrom(int frame, double speed) {
    if (!Available()) return;
    sf::Music& music = *stream->Get();
    long const sample = static_cast<long>(frame) * music.getSampleRate() / recorded_rate;
    sf::Time const at = time_of_sample(sample, music.getSampleRate(), music.getChannelCount());
    if (at >= music.getDuration()) return music.pause();
    music.setPitch(static_cast<float>(speed));
    if (music.getStatus() != sf::SoundSource::Playing) music.play();
    music.setPlayingOffset(at);
}

void RehearsalMusic::Pause() {
    if (Available()) stream->Get()->pause();
}

bool RehearsalMusic::Playing() const { return Available() && stream->Get()->getStatus() == sf::SoundSource::Playing; }

void RehearsalMusic::Mute(bool mute) {
    constexpr float full = 100;
    muted = mute;
    if (Available()) stream->Get()->setVolume(mute ? 0 : full);
}

double RehearsalMusic::Position() const {
    return Available() ? static_cast<double>(stream->Get()->getPlayingOffset().asMicroseconds()) / 1e6 : 0.0;
}
