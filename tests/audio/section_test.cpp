// SPDX-License-Identifier: MIT
#include "measure.h"
#include "soundtrack.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace {

/// Edges of the bands, hertz: sub, bass, low middle, middle, high middle, treble, air.
constexpr std::array<double, 8> edges = {30, 70, 160, 400, 1000, 2500, 6000, 16000};

struct Portrait {
    double level = 0;                              ///< decibels
    std::array<double, edges.size() - 1> colour{}; ///< each band against the whole, decibels
};

/// Portraits of all sections, without the last beat of each (which may be silence).
std::vector<Portrait> portraits() {
    std::vector<Portrait> all(soundtrack::sections().size());
    std::vector<float> const music = soundtrack::recording().Middle();
    auto const level = [](std::vector<float> const& signal, soundtrack::Stretch const& section) {
        return measure::level_db(signal, soundtrack::sample_at(section.from), soundtrack::sample_at(section.to - 1));
    };
    for (std::size_t i = 0; i < all.size(); ++i) all[i].level = level(music, soundtrack::sections()[i]);
    for (std::size_t b = 0; b + 1 < edges.size(); ++b) {
        std::vector<float> const part = measure::band(music, edges[b], edges[b + 1]);
        for (std::size_t i = 0; i < all.size(); ++i)
            all[i].colour[b] = level(part, soundtrack::sections()[i]) - all[i].level;
    }
    return all;
}

/// Root mean square of the differences over all bands, decibels.
double distance(Portrait const& a, Portrait const& b) {
    double sum = 0;
    for (std::size_t i = 0; i < a.colour.size(); ++i) sum += (a.colour[i] - b.colour[i]) * (a.colour[i] - b.colour[i]);
    return std::sqrt(sum / static_cast<double>(a.colour.size()));
}

} // namespace

TEST(SoundtrackSections, DifferFromTheirNeighboursInLevelAndInSpectrum) {
    std::vector<Portrait> const all = portraits();
    for (std::size_t i = 1; i < all.size(); ++i) {
        SCOPED_TRACE(testing::Message() << soundtrack::sections()[i - 1].name << " and "
                                        << soundtrack::sections()[i].name);
        EXPECT_GT(std::abs(all[i].level - all[i - 1].level), 1);
        EXPECT_GT(distance(all[i], all[i - 1]), 1.5);
    }
}

TEST(SoundtrackSections, LongSectionIsNotOneLoop) {
    // The six shapes of the third section, 16 beats each: none sounds like the one before it.
    std::vector<float> const music = soundtrack::recording().Middle();
    ASSERT_GE(music.size(), soundtrack::sample_at(160));
    for (int shape = 1; shape < 6; ++shape) {
        SCOPED_TRACE(testing::Message() << "shape " << shape);
        auto const part = [&](int k) {
            auto const first = music.begin() + static_cast<long>(soundtrack::sample_at(64 + 16 * k));
            return measure::milliseconds(
                std::vector<float>(first, first + static_cast<long>(soundtrack::sample_at(16))));
        };
        std::vector<double> const before = part(shape - 1);
        std::vector<double> const now = part(shape);
        double difference = 0;
        double sum = 0;
        for (std::size_t i = 0; i < now.size() && i < before.size(); ++i) {
            difference += std::abs(std::sqrt(now[i]) - std::sqrt(before[i]));
            sum += std::sqrt(now[i]) + std::sqrt(before[i]);
        }
        EXPECT_GT(difference / sum, 0.1);
    }
}
