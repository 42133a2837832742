// SPDX-License-Identifier: MIT
#include "figure.h"
#include "measure.h"
#include "score.h"
#include "soundtrack.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <string>

namespace {

using soundtrack::beat_seconds;

/// Attacks stand out at the top, where kick, bass and pads do not sustain.
std::vector<float> const& sharp() {
    static std::vector<float> const band = measure::band(soundtrack::recording().Middle(), 2000, 0);
    return band;
}

std::vector<double> const& attacks() {
    static std::vector<double> const energy =
        measure::milliseconds(measure::band(soundtrack::recording().Middle(), 1500, 0));
    return energy;
}

/// The band in which the kick falls.
std::vector<float> const& bodies() {
    static std::vector<float> const band = measure::band(soundtrack::recording().Middle(), 60, 400);
    return band;
}

/// Beats on which a kick falls: where four go to the bar.
std::vector<double> kick_beats() {
    std::vector<double> beats;
    auto const add = [&](int from, int to) {
        for (int beat = from; beat < to; ++beat) beats.push_back(beat);
    };
    add(0, 7);
    add(24, 59);
    for (int shape : {0, 1, 4}) add(64 + 16 * shape, 67 + 16 * shape);
    for (int shape : {0, 1, 2, 4, 5}) add(68 + 16 * shape, 79 + 16 * shape);
    add(184, 256);
    add(284, 285);
    add(288, 304);
    add(320, 351);
    return beats;
}

/// Whether a build has drawn the floor away under a beat, and with it the kick's body.
bool thinned(double beat) { return (beat >= 55 && beat < 64) || (beat >= 279 && beat < 288); }

/// The note that the kick on a beat lands on, 0 when the score gives none.
double kick_note(double beat) {
    for (soundtrack::Event const& kick : soundtrack::events_of({"Kick"}))
        if (std::abs(kick.beat - beat) < 0.01) return kick.note == 0 ? 31 : kick.note;
    return 0;
}

std::vector<double> in_seconds(std::vector<double> beats, double from, double to) {
    std::erase_if(beats, [&](double beat) { return beat < from || beat >= to; });
    for (double& beat : beats) beat *= beat_seconds;
    return beats;
}

/// Offset of the highest folded rise from the grid, milliseconds: the centre of its neighbourhood.
double folded_offset(std::vector<double> const& seconds) {
    constexpr int reach = 100;
    std::vector<double> const sums = measure::folded_rises(attacks(), seconds, reach);
    auto const top = static_cast<int>(std::max_element(sums.begin(), sums.end()) - sums.begin());
    double weights = 0;
    double moment = 0;
    for (int i = std::max(top - 2, 0); i <= std::min(top + 2, 2 * reach); ++i) {
        double const weight = std::pow(sums[static_cast<std::size_t>(i)], 4);
        weights += weight;
        moment += weight * (i - reach);
    }
    return weights > 0 ? moment / weights : 1000;
}

struct Hits {
    char const* what;
    std::vector<double> beats;
};

/// Every hit that the picture makes, in beats of the show.
std::vector<Hits> hits() {
    // clang-format off
    std::vector<Hits> all = {
        {"a word of the intro",            {0, 1, 2, 3, 4, 5, 6}},
        {"the flash after a word",         {0.25, 1.25, 2.25, 3.25, 4.25, 5.25, 6.25}},
        {"the glass and the second hit",   {12.25, 14}},
        {"she stands; the camera jumps",   {16, 20, 24}},
        {"the background turns",           {32, 40, 48, 56}},
        {"a shape, and its flash",         {64, 68, 80, 84, 96, 100, 112, 116, 128, 132, 144, 148}},
        {"the dancers swap",               {164, 165, 166, 167, 168, 172, 173, 174, 175, 176, 180, 181, 182, 183}},
        {"the flickers begin",             {160, 168, 176}},
        {"a blow in the tunnel",           {}},
        {"the title",                      {256, 284}},
        {"four flashes of the fountain",   {}},
        {"the last scene, the last chord", {352, 384}},
    };
    // clang-format on
    for (int beat = 184; beat < 256; ++beat) all[8].beats.push_back(beat);
    for (int bar = 288; bar < 351; bar += 4)
        for (double flash : {0.0, 0.2, 0.4, 0.6}) all[10].beats.push_back(bar + flash);
    return all;
}

} // namespace

TEST(SoundtrackTiming, EveryKickStartsWithinOneMillisecondOfItsBeat) {
    double worst = 0;
    for (double beat : kick_beats()) {
        SCOPED_TRACE(testing::Message() << "beat " << beat);
        measure::Onset const onset = measure::find_onset(sharp(), beat * beat_seconds);
        EXPECT_LE(std::abs(onset.offset_ms), 1);
        EXPECT_GT(onset.rise_db, 6);
        worst = std::max(worst, std::abs(onset.offset_ms));
    }
    figure("kick's onset farthest from its beat, ms", worst);
}

TEST(SoundtrackTiming, EveryKickHasTheSameBodyAtTheSamePlaceAsAllOthersOnItsNote) {
    // The kick's fall to one note is the same each time, everything else is not: the mean over all such kicks is the
    // kick alone.
    constexpr std::size_t length = soundtrack::rate * 60 / 1000;
    std::map<double, std::vector<std::size_t>> starts;
    for (double beat : kick_beats())
        if (!thinned(beat)) starts[kick_note(beat)].push_back(soundtrack::sample_at(beat));
    double worst = 0;
    for (auto const& [note, same] : starts) {
        if (same.size() < 8) continue; // too few for a mean
        std::vector<float> const kick = measure::average(bodies(), same, length);
        for (std::size_t start : same) {
            SCOPED_TRACE(testing::Message() << "beat " << static_cast<double>(start) / soundtrack::rate / beat_seconds);
            measure::Match const match = measure::find_shape(bodies(), start, kick, 10);
            EXPECT_GT(match.likeness, 0.5);
            EXPECT_LE(std::abs(match.offset_ms), 1);
            worst = std::max(worst, std::abs(match.offset_ms));
        }
    }
    EXPECT_GE(starts.size(), 3u);
    figure("kick farthest from its place, ms", worst);
}

TEST(SoundtrackTiming, FoldedKicksLieOnTheGridAndDoNotDrift) {
    std::vector<double> const kicks = kick_beats();
    double const whole = folded_offset(in_seconds(kicks, 0, soundtrack::show_beats));
    double const first = folded_offset(in_seconds(kicks, 0, 128));
    double const last = folded_offset(in_seconds(kicks, 256, soundtrack::show_beats));
    EXPECT_NEAR(whole, 0, 2);
    EXPECT_NEAR(first, last, 1);
    RecordProperty("first_ms", std::to_string(first));
    RecordProperty("last_ms", std::to_string(last));
}

TEST(SoundtrackTiming, EveryHitOfThePictureIsAnOnsetWithinOneMillisecond) {
    double worst = 0;
    for (auto const& [what, beats] : hits()) {
        for (double beat : beats) {
            SCOPED_TRACE(testing::Message() << what << ", beat " << beat);
            measure::Onset const onset = measure::find_onset(sharp(), beat * beat_seconds);
            EXPECT_LE(std::abs(onset.offset_ms), 1);
            EXPECT_GT(onset.rise_db, 6);
            worst = std::max(worst, std::abs(onset.offset_ms));
        }
    }
    figure("hit's onset farthest from its beat, ms", worst);
}
