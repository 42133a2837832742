// SPDX-License-Identifier: MIT
#include "soundtrack.h"

#include <SFML/Audio/InputSoundFile.hpp>

#include <cmath>
#include <cstdlib>

namespace soundtrack {

namespace {

std::vector<float> mix(Recording const& music, float right_share) {
    std::vector<float> mixed(music.left);
    for (std::size_t i = 0; i < music.right.size(); ++i) mixed[i] = 0.5f * (mixed[i] + right_share * music.right[i]);
    return mixed;
}

} // namespace

std::vector<float> Recording::Middle() const { return mix(*this, 1); }

std::vector<float> Recording::Side() const { return mix(*this, -1); }

Recording decode(std::string const& path) {
    Recording music;
    sf::InputSoundFile file;
    if (!file.openFromFile(path) || file.getChannelCount() == 0) return music;
    std::vector<sf::Int16> samples(file.getSampleCount());
    samples.resize(static_cast<std::size_t>(file.read(samples.data(), samples.size())));
    music.rate = file.getSampleRate();
    music.channels = file.getChannelCount();
    for (std::size_t i = 0; i + music.channels <= samples.size(); i += music.channels) {
        music.left.push_back(static_cast<float>(samples[i]) / 32768);
        if (music.channels > 1) music.right.push_back(static_cast<float>(samples[i + 1]) / 32768);
    }
    return music;
}

std::string path() {
    char const* other = std::getenv("HARDSILENCE_SOUNDTRACK");
    return other != nullptr ? other : HARDSILENCE_SOURCE_DIR "/data/rump2.ogg";
}

Recording const& recording() {
    static Recording const music = decode(path());
    return music;
}

std::size_t sample_at(double beat) { return static_cast<std::size_t>(std::llround(beat * beat_seconds * rate)); }

std::vector<Stretch> const& sections() {
    // clang-format off
    static std::vector<Stretch> const table = {
        {"Intro",      0,   16},
        {"Gun Girl",   16,  64},
        {"Swapper",    64,  160},
        {"Credits",    160, 184},
        {"Tunnelgate", 184, 256},
        {"Plasma",     256, 288},
        {"Fountain",   288, 352},
        {"Greets",     352, 384},
    };
    // clang-format on
    return table;
}

std::vector<Stretch> const& hard_silences() {
    // clang-format off
    static std::vector<Stretch> const table = {
        {"before Gun Girl",   15,    16},
        {"before Swapper",    63,    64},
        {"before Credits",    159,   160},
        {"before Tunnelgate", 183.5, 184},
        {"before Plasma",     255.5, 256},
        {"before Fountain",   287,   288},
        {"before Greets",     351,   352},
    };
    // clang-format on
    return table;
}

std::vector<Stretch> const& grooves() {
    // clang-format off
    static std::vector<Stretch> const table = {
        {"Gun Girl",           24,  56 },
        {"Swapper 1",          68,  79 },
        {"Swapper 2",          84,  95 },
        {"Swapper 3",          100, 111},
        {"Swapper 5",          132, 143},
        {"Swapper 6",          148, 156},
        {"Tunnelgate, roots",  192, 208},
        {"Tunnelgate, climax", 224, 248},
        {"Fountain 1",         292, 303},
        {"Fountain 3",         324, 335},
        {"Fountain 4",         340, 350},
    };
    // clang-format on
    return table;
}

} // namespace soundtrack
