// SPDX-License-Identifier: MIT
#include "figure.h"
#include "measure.h"
#include "score.h"
#include "soundtrack.h"
#include "spectrum.h"
#include "variety.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

// What every voice adds to the mix, from the stems: the voices alone, at the level at which they meet.

namespace {

using soundtrack::stem;
using soundtrack::Stretch;

std::vector<char const*> const sustained = {"Bass", "Reese", "Sub",   "Growl", "Acid",    "Lead", "Wail", "Stab",
                                            "Pad",  "Choir", "Drone", "Arp",   "Shimmer", "Ride", "Bell"};

constexpr std::size_t frame_size = 4096;
constexpr std::size_t frame_hop = 2048;

/// Third-octave bands from 50 Hz to 12.5 kHz.
std::vector<double> const& thirds() {
    static std::vector<double> const edges = measure::octave_edges(50, 25, 3);
    return edges;
}

struct Frames {
    int sounding = 0;
    int heard = 0;
};

/// A voice sounds in a frame where it is above -60 dB. It is heard where it lies within 3 dB of the rest of the mix, or
/// above it, in two bands or more of those that hold a hundredth of its own power.
std::vector<Frames> heard_frames(std::string const& voice, std::vector<Stretch> const& blocks) {
    std::vector<float> const& alone = stem(voice);
    std::vector<float> rest = stem("mix");
    for (std::size_t i = 0; i < rest.size(); ++i) rest[i] -= alone[i];
    measure::BandPowers const mine(alone, thirds(), frame_size, frame_hop);
    measure::BandPowers const theirs(rest, thirds(), frame_size, frame_hop);
    std::vector<Frames> found(blocks.size());
    for (std::size_t frame = 0; frame < mine.Frames(); ++frame) {
        double whole = 0;
        for (double power : mine.Row(frame)) whole += power;
        if (whole < 1e-6) continue;
        int bands = 0;
        for (std::size_t band = 0; band < mine.Row(frame).size(); ++band)
            if (mine.Row(frame)[band] > 0.01 * whole && mine.Row(frame)[band] > 0.5 * theirs.Row(frame)[band]) ++bands;
        for (std::size_t block = 0; block < blocks.size(); ++block) {
            double const beat = mine.Beat(frame);
            if (beat < blocks[block].from || beat >= blocks[block].to) continue;
            ++found[block].sounding;
            found[block].heard += bands >= 2 ? 1 : 0;
        }
    }
    return found;
}

/// The show in blocks of one texture each.
std::vector<Stretch> const& blocks() {
    // clang-format off
    static std::vector<Stretch> const table = {
        {"Intro",             0,   16 },
        {"Gun Girl, build",   16,  24 },
        {"Gun Girl, groove",  24,  40 },
        {"Gun Girl, theme",   40,  64 },
        {"Swapper 1",         64,  80 },
        {"Swapper 2",         80,  96 },
        {"Swapper 3",         96,  112},
        {"Swapper 4",         112, 128},
        {"Swapper 5",         128, 144},
        {"Swapper 6",         144, 160},
        {"Credits",           160, 184},
        {"Tunnel 1",          184, 208},
        {"Tunnel 2",          208, 224},
        {"Tunnel 3",          224, 240},
        {"Tunnel 4",          240, 256},
        {"Plasma 1",          256, 272},
        {"Plasma 2",          272, 288},
        {"Fountain 1",        288, 304},
        {"Fountain 2",        304, 320},
        {"Fountain 3",        320, 336},
        {"Fountain 4",        336, 352},
        {"Greets 1",          352, 368},
        {"Greets 2",          368, 384},
    };
    // clang-format on
    return table;
}

double level(std::vector<float> const& signal, Stretch const& where) {
    return measure::level_db(signal, soundtrack::sample_at(where.from), soundtrack::sample_at(where.to));
}

} // namespace

TEST(SoundtrackStems, EverySustainedVoiceIsHeardWhereverItPlays) {
    ASSERT_FALSE(stem("mix").empty());
    for (std::string const voice : sustained) {
        ASSERT_FALSE(stem(voice).empty()) << voice;
        std::vector<Frames> const frames = heard_frames(voice, blocks());
        int played = 0;
        std::vector<soundtrack::Event> const notes = soundtrack::events_of({voice});
        for (std::size_t i = 0; i < frames.size(); ++i) {
            bool const plays = std::any_of(notes.begin(), notes.end(), [&](soundtrack::Event const& note) {
                return note.beat >= blocks()[i].from && note.beat < blocks()[i].to;
            });
            if (!plays) continue; // what sounds is a tail from the block before
            EXPECT_GT(frames[i].sounding, 0) << voice << " in " << blocks()[i].name;
            if (frames[i].sounding == 0) continue;
            ++played;
            double const share = 100.0 * frames[i].heard / frames[i].sounding;
            figure(voice + " heard, per cent, " + blocks()[i].name, share);
            EXPECT_GE(share, 15) << voice << " in " << blocks()[i].name;
        }
        EXPECT_GE(played, 1) << voice << " never plays";
    }
}

TEST(SoundtrackStems, TheChoirCarriesTheTitle) {
    Stretch const title = {"Plasma", 256, 287};
    std::vector<Frames> const frames = heard_frames("Choir", std::vector<Stretch>(1, title));
    ASSERT_GT(frames[0].sounding, 100);
    double const share = 100.0 * frames[0].heard / frames[0].sounding;
    figure("choir heard in Plasma, per cent", share);
    EXPECT_GE(share, 60);
}

TEST(SoundtrackStems, TheBassLiesThreeToSixDecibelsUnderTheKick) {
    std::vector<float> const kick = measure::band(stem("kick"), 30, 120);
    std::vector<float> const bass = measure::band(stem("basses"), 30, 120);
    for (Stretch const& groove : soundtrack::grooves()) {
        double const under = level(kick, groove) - level(bass, groove);
        figure(std::string("kick over bass, 30 to 120 Hz, dB, ") + groove.name, under);
        EXPECT_GE(under, 3) << groove.name;
        EXPECT_LE(under, 6) << groove.name;
    }
}

TEST(SoundtrackStems, TheBassHoldsItsOwnBetween90And160Hz) {
    std::vector<float> const kick = measure::band(stem("kick"), 90, 160);
    std::vector<float> const bass = measure::band(stem("basses"), 90, 160);
    for (Stretch const& groove : soundtrack::grooves()) {
        double const against = level(bass, groove) - level(kick, groove);
        figure(std::string("bass against kick, 90 to 160 Hz, dB, ") + groove.name, against);
        EXPECT_GE(against, -5) << groove.name;
    }
}

TEST(SoundtrackStems, GroovesStandInARoom) {
    ASSERT_FALSE(stem("wet").empty());
    std::vector<float> const& wet = stem("wet");
    std::vector<float> dry = stem("mix");
    for (std::size_t i = 0; i < dry.size(); ++i) dry[i] -= wet[i];
    for (Stretch const& groove : soundtrack::grooves()) {
        double const against = level(wet, groove) - level(dry, groove);
        figure(std::string("wet against dry, dB, ") + groove.name, against);
        EXPECT_GE(against, -16) << groove.name;
    }
}

TEST(SoundtrackStems, ParallelCompressionLiftsTheDrumsByTwoToThreeDecibels) {
    ASSERT_FALSE(stem("drums").empty());
    ASSERT_FALSE(stem("drums-plain").empty());
    for (Stretch const& groove : soundtrack::grooves()) {
        double const lift = level(stem("drums"), groove) - level(stem("drums-plain"), groove);
        figure(std::string("parallel compression, dB, ") + groove.name, lift);
        EXPECT_GE(lift, 2) << groove.name;
        EXPECT_LE(lift, 3) << groove.name;
    }
}
