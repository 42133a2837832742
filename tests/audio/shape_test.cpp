// SPDX-License-Identifier: MIT
#include "figure.h"
#include "measure.h"
#include "soundtrack.h"
#include "spectrum.h"
#include "variety.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>

// The shape of the piece: drops that drop, rounds that differ, hits of three sizes, an end that thins out.

namespace {

using soundtrack::recording;
using soundtrack::sample_at;

/// A scene change that a build leads to, and the hard silence before it. In beats of the show.
struct Drop {
    int beat;
    double silence; ///< beats
};

std::vector<Drop> const& drops() {
    // clang-format off
    static std::vector<Drop> const table = {
        {64,  1  },
        {184, 0.5},
        {288, 1  },
    };
    // clang-format on
    return table;
}

/// How loud a hit arrives: its first half beat, decibels.
double arrival(double beat) { return measure::level_db(recording().Middle(), sample_at(beat), sample_at(beat + 0.5)); }

double mean(std::vector<double> const& values) {
    return std::accumulate(values.begin(), values.end(), 0.0) / static_cast<double>(values.size());
}

double quietest(std::vector<double> const& beats) {
    double least = 0;
    for (double beat : beats) least = std::min(least, arrival(beat));
    return least;
}

double loudest(std::vector<double> const& beats) {
    double most = measure::silence_db;
    for (double beat : beats) most = std::max(most, arrival(beat));
    return most;
}

} // namespace

TEST(SoundtrackDrops, TheFloorComesBackSixDecibelsLouder) {
    std::vector<float> const floor = measure::band(recording().Middle(), 30, 120);
    for (auto const& [beat, silence] : drops()) {
        double const before = measure::level_db(floor, sample_at(beat - silence - 4), sample_at(beat - silence));
        double const after = measure::level_db(floor, sample_at(beat), sample_at(beat + 4));
        figure("drop at " + std::to_string(beat) + ", dB in 30 to 120 Hz", after - before);
        EXPECT_GE(after - before, 6) << "beat " << beat;
    }
}

TEST(SoundtrackDrops, BuildsGrowBrighterOverEightBeats) {
    std::vector<double> const edges = measure::octave_edges(40, 103, 12);
    measure::BandPowers const powers(recording().Middle(), edges, 4096, 1024);
    for (auto const& [beat, silence] : drops()) {
        SCOPED_TRACE(testing::Message() << "beat " << beat);
        double const end = beat - silence;
        std::vector<double> pairs; // of beats, so that a clap on every other one does not count
        for (double at = end - 8; at < end - 0.5; at += 2)
            pairs.push_back(measure::centroid(powers.Mean(at, at + 2), edges));
        ASSERT_EQ(pairs.size(), 4u);
        figure("centroid at the start of the build to " + std::to_string(beat) + ", Hz", pairs.front());
        figure("centroid at its end, Hz", pairs.back());
        EXPECT_TRUE(std::is_sorted(pairs.begin(), pairs.end())) << testing::PrintToString(pairs);
        EXPECT_GT(pairs.back(), 1.5 * pairs.front());
    }
}

TEST(SoundtrackVariety, TheFourRoundsOfTheFountainDiffer) {
    std::vector<variety::Bar> const bars = variety::bars();
    for (std::size_t a = 0; a < 4; ++a) {
        for (std::size_t b = a + 1; b < 4; ++b) {
            std::vector<double> apart; // each bar against its fellow under the same chord
            for (std::size_t i = 0; i < 4; ++i)
                apart.push_back(variety::difference_db(bars[72 + 4 * a + i], bars[72 + 4 * b + i]));
            double const median = variety::median(apart);
            figure("rounds " + std::to_string(a + 1) + " and " + std::to_string(b + 1) + ", dB", median);
            EXPECT_GE(median, 6);
        }
    }
}

TEST(SoundtrackVariety, NoSectionStandsStill) {
    std::vector<variety::Bar> const bars = variety::bars();
    for (soundtrack::Stretch const& section : soundtrack::sections()) {
        std::vector<double> steps;
        for (auto i = static_cast<std::size_t>(section.from / 4); i + 1 < static_cast<std::size_t>(section.to / 4); ++i)
            steps.push_back(variety::difference_db(bars[i], bars[i + 1]));
        double const median = variety::median(steps);
        figure(std::string("bar to bar, dB, ") + section.name, median);
        EXPECT_GE(median, 5.5) << section.name;
    }
}

TEST(SoundtrackImpacts, ComeInThreeSizes) {
    std::vector<double> const scene_changes = {64, 184, 256, 288};
    std::vector<double> const flashes = {20, 68, 84, 100, 116, 132, 148};
    std::vector<double> const small_turns = {32, 40, 48, 56, 80, 96, 112, 128, 144};
    double const big = quietest(scene_changes);
    double const small = loudest(small_turns);
    double middle = 0;
    for (double beat : flashes) middle += arrival(beat) / static_cast<double>(flashes.size());
    figure("quietest scene change, dB", big);
    figure("flashes on the mean, dB", middle);
    figure("loudest small turn, dB", small);
    EXPECT_GE(big - small, 4);
    EXPECT_GT(middle, small);
    EXPECT_LT(middle, big);
}

TEST(SoundtrackImpacts, TheFountainsFlashesDoNotPushItsKickAside) {
    std::vector<float> const kicks = measure::band(recording().Middle(), 40, 120);
    std::vector<double> downbeats;
    std::vector<double> others;
    for (int beat = 320; beat < 348; ++beat) { // the rounds in which kick, accents and everything else meet
        double const level = measure::level_db(kicks, sample_at(beat), sample_at(beat + 0.5));
        (beat % 4 == 0 ? downbeats : others).push_back(level);
    }
    double const apart = mean(downbeats) - mean(others);
    figure("downbeat's kick against the others, dB", apart);
    EXPECT_GT(apart, -0.5);
    EXPECT_LT(apart, 1);
}

TEST(SoundtrackEnd, ThinsOutWithoutACliff) {
    std::vector<float> const music = recording().Middle();
    double before = measure::level_db(music, sample_at(364), sample_at(366));
    double const start = before;
    double steepest = 0;
    for (int beat = 366; beat < 380; beat += 2) {
        double const now = measure::level_db(music, sample_at(beat), sample_at(beat + 2));
        steepest = std::max(steepest, before - now);
        before = now;
    }
    figure("steepest fall within two beats, dB", steepest);
    figure("fall from 364 to 380, dB", start - before);
    EXPECT_LE(steepest, 3.5);
    EXPECT_GT(start - before, 4);
}
