// SPDX-License-Identifier: MIT
#include "tools/timeline/waveform.h"

#include "kore/soundtrackfile.h"

#include <SFML/Audio/InputSoundFile.hpp>
#include <algorithm>
#include <cmath>

Waveform read_waveform(std::string const& path, double beat) {
    sf::InputSoundFile file;
    if (!kore::may_be_soundtrack(path) || !file.openFromFile(path)) return {};
    constexpr double full = 32768;
    double const values_per_part = beat / Waveform::per_beat * file.getSampleRate() * file.getChannelCount();
    Waveform waveform;
    std::vector<sf::Int16> values;
    for (double end = 0;;) {
        auto const begin = static_cast<long>(end);
        end += values_per_part;
        values.resize(static_cast<std::size_t>(static_cast<long>(end) - begin));
        auto const got = static_cast<std::size_t>(file.read(values.data(), values.size()));
        if (got == 0) return waveform;
        double peak = 0;
        double squares = 0;
        for (std::size_t i = 0; i < got; ++i) {
            double const value = values[i] / full;
            peak = std::max(peak, std::abs(value));
            squares += value * value;
        }
        double const mean = std::sqrt(squares / static_cast<double>(got));
        waveform.parts.push_back({static_cast<float>(peak), static_cast<float>(mean)});
    }
}
