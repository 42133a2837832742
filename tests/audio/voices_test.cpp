// SPDX-License-Identifier: MIT
#include "figure.h"
#include "measure.h"
#include "score.h"
#include "soundtrack.h"
#include "spectrum.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

// Every voice alone: soft, hard and hard again.

namespace {

constexpr double beats_apart = 4; ///< from stroke to stroke

/// The first beat of one of a voice's three strokes.
std::vector<float> stroke(std::size_t voice, std::size_t number) {
    std::vector<float> const& all = soundtrack::voices().signal;
    std::size_t const first =
        soundtrack::sample_at(beats_apart * (3 * static_cast<double>(voice) + static_cast<double>(number)));
    std::size_t const last = std::min(first + soundtrack::sample_at(1), all.size());
    return {all.begin() + static_cast<long>(std::min(first, last)), all.begin() + static_cast<long>(last)};
}

/// Spectral centroid, hertz.
double brightness(std::vector<float> signal) {
    constexpr std::size_t size = 4096;
    signal.insert(signal.begin(), size / 2, 0); // the window's middle comes to lie on the first sample
    std::vector<double> const edges = measure::even_edges(25, 16000, 120);
    measure::BandPowers const powers(signal, edges, size, size / 4);
    std::vector<double> sum(edges.size() - 1);
    for (std::size_t frame = 0; frame < powers.Frames(); ++frame)
        for (std::size_t band = 0; band < sum.size(); ++band) sum[band] += powers.Row(frame)[band];
    return measure::centroid(sum, edges);
}

/// The spectrum of a fifth of a second, in bands of 5 Hz.
std::vector<float> magnitudes(std::vector<float> signal) {
    constexpr std::size_t size = 9600;
    signal.resize(size);
    std::vector<double> edges;
    for (double edge = 3000; edge <= 16000; edge += 5) edges.push_back(edge);
    measure::BandPowers const powers(signal, edges, size, size);
    std::vector<float> all;
    for (double power : powers.Row(0)) all.push_back(static_cast<float>(std::sqrt(power)));
    return all;
}

} // namespace

TEST(SoundtrackVoices, AHarderStrokeIsBrighter) {
    std::vector<std::string> const& names = soundtrack::voices().names;
    ASSERT_GE(names.size(), 28u);
    for (std::size_t voice = 0; voice < names.size(); ++voice) {
        double const soft = brightness(stroke(voice, 0));
        double const hard = brightness(stroke(voice, 1));
        figure(names[voice] + ", brightness hard over soft", hard / soft);
        EXPECT_GE(hard, 1.03 * soft) << names[voice];
    }
}

TEST(SoundtrackVoices, HatsVaryFromStrokeToStroke) {
    // Noise alone leaves two spectra alike by half or more; metal that is tuned anew each time adds to the difference.
    std::vector<std::string> const& names = soundtrack::voices().names;
    for (std::string const name : {"Hat", "OpenHat"}) {
        auto const voice = static_cast<std::size_t>(std::find(names.begin(), names.end(), name) - names.begin());
        ASSERT_LT(voice, names.size());
        double const alike = measure::correlation(magnitudes(stroke(voice, 1)), magnitudes(stroke(voice, 2)));
        figure(name + ", likeness of two equal strokes", alike);
        EXPECT_LE(alike, 0.35) << name;
        EXPECT_GE(alike, 0.1) << name;
    }
}
