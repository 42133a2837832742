// SPDX-License-Identifier: MIT
#include "figure.h"
#include "measure.h"
#include "soundtrack.h"
#include "spectrum.h"

#include <gtest/gtest.h>

#include <algorithm>

// The balance of the finished mix, section by section.

namespace {

using soundtrack::recording;
using soundtrack::Stretch;

constexpr double first_octave = 31.25; ///< hertz; the others are 62.5, 125 and so on to 16000
constexpr std::size_t octaves = 10;

/// Powers of the octaves of a signal in every section, without the silence at its end.
std::vector<std::vector<double>> octave_powers(std::vector<float> const& signal) {
    measure::BandPowers const powers(signal, measure::octave_edges(first_octave, octaves, 1), 4096, 2048);
    std::vector<std::vector<double>> all;
    for (Stretch const& section : soundtrack::sections()) all.push_back(powers.Mean(section.from, section.to - 1));
    return all;
}

double ratio_db(double a, double b) { return measure::power_db(a) - measure::power_db(b); }

} // namespace

TEST(SoundtrackMix, TheTopOctaveLiesUnderTheOneBelowWhereThereAreHats) {
    std::vector<std::vector<double>> const middle = octave_powers(recording().Middle());
    std::vector<std::vector<double>> const side = octave_powers(recording().Side());
    for (std::size_t i = 0; i < middle.size(); ++i) {
        double const under = ratio_db(middle[i][8] + side[i][8], middle[i][9] + side[i][9]);
        figure(std::string("8 kHz over 16 kHz, dB, ") + soundtrack::sections()[i].name, under);
        EXPECT_GE(under, 3) << soundtrack::sections()[i].name;
    }
}

TEST(SoundtrackMix, TheSideLiesUnderTheMiddleInEveryOctaveBelow8kHz) {
    std::vector<std::vector<double>> const middle = octave_powers(recording().Middle());
    std::vector<std::vector<double>> const side = octave_powers(recording().Side());
    for (std::size_t i = 0; i < middle.size(); ++i) {
        double widest = measure::silence_db;
        for (std::size_t octave = 1; octave < 8; ++octave)
            widest = std::max(widest, ratio_db(side[i][octave], middle[i][octave]));
        figure(std::string("widest octave below 8 kHz, side over middle, dB, ") + soundtrack::sections()[i].name,
               widest);
        EXPECT_LT(widest, 0) << soundtrack::sections()[i].name;
    }
}

TEST(SoundtrackMix, Below120HzEverySectionIsMono) {
    std::vector<double> const edges = {30, 120};
    measure::BandPowers const middle(recording().Middle(), edges, 8192, 4096);
    measure::BandPowers const side(recording().Side(), edges, 8192, 4096);
    for (Stretch const& section : soundtrack::sections()) {
        double const under =
            ratio_db(middle.Mean(section.from, section.to - 1)[0], side.Mean(section.from, section.to - 1)[0]);
        figure(std::string("middle over side below 120 Hz, dB, ") + section.name, under);
        EXPECT_GE(under, 20) << section.name;
    }
}

TEST(SoundtrackMix, TheBreakdownHasBodyAndAir) {
    std::vector<double> const edges = {20, 80, 160, 5657, 11314, 20000}; // bass, body, and the octave of 8 kHz
    std::vector<double> const powers = measure::BandPowers(recording().Middle(), edges, 8192, 2048).Mean(258, 284);
    double whole = 0;
    for (double power : powers) whole += power;
    double const body = ratio_db(powers[1], whole);
    double const air = ratio_db(powers[3], whole);
    figure("Plasma, 80 to 160 Hz against all, dB", body);
    figure("Plasma, octave of 8 kHz against all, dB", air);
    EXPECT_GE(body, -8);
    EXPECT_LE(body, -3);
    EXPECT_GE(air, -20);
}
