// SPDX-License-Identifier: MIT
#include "measure.h"
#include "soundtrack.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numeric>

namespace {

using soundtrack::recording;

/// The longest run of samples at either end of the 16-bit range.
std::size_t longest_clipped_run(std::vector<float> const& signal) {
    std::size_t longest = 0;
    std::size_t run = 0;
    for (float sample : signal) {
        run = std::abs(sample) >= 32767.0f / 32768 ? run + 1 : 0;
        longest = std::max(longest, run);
    }
    return longest;
}

} // namespace

TEST(SoundtrackLevel, IntegratedLoudnessIsMinusTwelveWithinOneAndTheTruePeakBelowMinusOne) {
    measure::Loudness const loudness = measure::loudness(soundtrack::path());
    ASSERT_TRUE(loudness.valid) << "ffmpeg did not measure the file";
    RecordProperty("lufs", std::to_string(loudness.integrated_lufs));
    RecordProperty("dbtp", std::to_string(loudness.true_peak_dbtp));
    EXPECT_NEAR(loudness.integrated_lufs, -12, 1);
    EXPECT_LT(loudness.true_peak_dbtp, -1);
}

TEST(SoundtrackLevel, HasNoRunOfClippedSamples) {
    ASSERT_GT(recording().Count(), 0u);
    EXPECT_LT(longest_clipped_run(recording().left), 3u);
    EXPECT_LT(longest_clipped_run(recording().right), 3u);
}

TEST(SoundtrackLevel, CarriesNoDirectCurrent) {
    for (std::vector<float> const& side : {recording().left, recording().right}) {
        ASSERT_FALSE(side.empty());
        double const offset = std::accumulate(side.begin(), side.end(), 0.0) / static_cast<double>(side.size());
        EXPECT_LT(20 * std::log10(std::abs(offset) + 1e-12), -60);
    }
}

TEST(SoundtrackLevel, BassIsMono) {
    std::size_t const end = recording().Count();
    ASSERT_GT(end, 0u);
    double const middle = measure::level_db(measure::band(recording().Middle(), 0, 90), 0, end);
    double const side = measure::level_db(measure::band(recording().Side(), 0, 90), 0, end);
    EXPECT_LT(side, middle - 20);
}

TEST(SoundtrackLevel, TrebleIsWide) {
    std::size_t const end = recording().Count();
    ASSERT_GT(end, 0u);
    double const middle = measure::level_db(measure::band(recording().Middle(), 1000, 0), 0, end);
    double const side = measure::level_db(measure::band(recording().Side(), 1000, 0), 0, end);
    EXPECT_GT(side, middle - 12);
}

TEST(SoundtrackLevel, HardSilencesAreSilentAndLoudMusicStandsOnBothSides) {
    // Vorbis smears a few milliseconds over each edge; between those nothing sounds.
    constexpr double edge = 0.025 / soundtrack::beat_seconds;
    std::vector<float> const music = recording().Middle();
    std::vector<float> const side = recording().Side();
    for (auto const& [name, from, to] : soundtrack::hard_silences()) {
        SCOPED_TRACE(name);
        std::size_t const first = soundtrack::sample_at(from + edge);
        std::size_t const last = soundtrack::sample_at(to - edge);
        EXPECT_LT(measure::level_db(music, first, last), -65);
        EXPECT_LT(measure::level_db(side, first, last), -65);
        EXPECT_LT(measure::peak_db(music, first, last), -50);
        EXPECT_GT(measure::level_db(music, soundtrack::sample_at(from - 1), soundtrack::sample_at(from)), -20);
        EXPECT_GT(measure::level_db(music, soundtrack::sample_at(to), soundtrack::sample_at(to + 0.5)), -20);
    }
}

TEST(SoundtrackLevel, TailHasDiedAwayAtTheEnd) {
    std::size_t const end = recording().Count();
    ASSERT_GT(end, soundtrack::sample_at(384));
    EXPECT_LT(measure::peak_db(recording().Middle(), end - soundtrack::rate / 20, end), -55);
    EXPECT_GT(measure::level_db(recording().Middle(), soundtrack::sample_at(384), soundtrack::sample_at(385)), -35);
}
