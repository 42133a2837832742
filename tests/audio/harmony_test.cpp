// SPDX-License-Identifier: MIT
#include "figure.h"
#include "score.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>

// Wrong notes, found in the score itself.

namespace {

using soundtrack::clash;
using soundtrack::Event;
using soundtrack::events_of;
using soundtrack::notes_at;

/// A stretch of 64 steps in which voices of a melody meet voices of a harmony.
struct Meeting {
    char const* what;
    double from; ///< beat of the show
    double step; ///< beats
    std::vector<std::string> melody;
    std::vector<std::string> harmony;
};

/// Steps of 64 on which a note of the melody clashes with one of the harmony.
int clashing_steps(Meeting const& meeting) {
    std::vector<Event> const melody = events_of(meeting.melody);
    std::vector<Event> const harmony = events_of(meeting.harmony);
    int count = 0;
    for (int step = 0; step < 64; ++step) {
        double const beat = meeting.from + (step + 0.5) * meeting.step;
        bool clashes = false;
        for (int a : notes_at(melody, beat))
            for (int b : notes_at(harmony, beat)) clashes = clashes || clash(a, b);
        count += clashes ? 1 : 0;
    }
    return count;
}

} // namespace

TEST(SoundtrackHarmony, NoTwoBassVoicesStandASemitoneApartForLongerThanAQuarterBeat) {
    std::vector<Event> low = events_of({"Bass", "Reese", "Sub", "Growl", "Rumble", "Drone", "Lead"});
    std::erase_if(low, [](Event const& event) { return event.note > 45; });
    ASSERT_GT(low.size(), 500u);
    constexpr double step = 1.0 / 32;
    std::map<std::pair<std::string, std::string>, double> together; // beats in a row, by pair of voices
    double longest = 0;
    for (double beat = step / 2; beat < 384; beat += step) {
        std::map<std::string, std::vector<int>> sounding;
        for (Event const& event : low)
            if (event.beat <= beat && beat < event.beat + event.beats)
                sounding[event.voice].push_back(static_cast<int>(std::lround(event.note)));
        decltype(together) still;
        for (auto const& [voice, notes] : sounding) {
            for (auto const& [other, others] : sounding) {
                if (voice >= other) continue;
                bool const grinds = std::any_of(notes.begin(), notes.end(), [&](int a) {
                    return std::any_of(others.begin(), others.end(), [&](int b) { return clash(a, b); });
                });
                if (!grinds) continue;
                double const beats = together[{voice, other}] + step;
                still[{voice, other}] = beats;
                longest = std::max(longest, beats);
                EXPECT_LE(beats, 0.25) << voice << " and " << other << " at beat " << beat;
            }
        }
        together = still;
    }
    figure("longest semitone between bass voices, beats", longest);
}

TEST(SoundtrackHarmony, MelodiesClashWithTheirChordsOnAtMostEightStepsOf64) {
    std::vector<std::string> const chords = {"Pad", "Sub", "Reese"};
    // clang-format off
    std::vector<Meeting> const meetings = {
        {"Swapper, third shape",    96,  0.25, {"Lead", "Wail"}, chords},
        {"Swapper, sixth shape",    144, 0.25, {"Lead", "Wail"}, chords},
        {"Plasma, at half speed",   256, 0.5,  {"Choir"},        chords},
        {"Fountain, second round",  304, 0.25, {"Lead", "Wail"}, chords},
        {"Fountain, fourth round",  336, 0.25, {"Lead", "Wail"}, chords},
        {"Greets",                  352, 0.25, {"Bell"},         chords},
    };
    // clang-format on
    for (Meeting const& meeting : meetings) {
        SCOPED_TRACE(meeting.what);
        std::vector<Event> const melody = events_of(meeting.melody);
        std::vector<Event> const harmony = events_of(meeting.harmony);
        int heard = 0;
        for (int step = 0; step < 64; ++step) {
            double const beat = meeting.from + (step + 0.5) * meeting.step;
            heard += !notes_at(melody, beat).empty() && !notes_at(harmony, beat).empty() ? 1 : 0;
        }
        EXPECT_GE(heard, 16) << "melody and chords hardly meet";
        int const clashes = clashing_steps(meeting);
        figure(std::string("clashing steps, ") + meeting.what, clashes);
        EXPECT_LE(clashes, 8);
    }
}

TEST(SoundtrackHarmony, TheCanonClashesOnAtMostAFewSixteenths) {
    int const clashes = clashing_steps({"canon", 320, 0.25, {"Lead"}, {"Wail"}});
    figure("clashing sixteenths of the canon, per cent", 100.0 * clashes / 64);
    EXPECT_LE(100.0 * clashes / 64, 5);
    EXPECT_FALSE(notes_at(events_of({"Wail"}), 325.1).empty()) << "there is no canon";
}

TEST(SoundtrackHarmony, KicksLandOnTheRootWhereTheHarmonyMoves) {
    // A kick without a note lands on g.
    std::vector<Event> const basses = events_of({"Bass", "Sub", "Reese"});
    std::map<int, int> roots;
    int off = 0;
    int on = 0;
    for (Event const& kick : events_of({"Kick"})) {
        bool const moves = (kick.beat >= 96 && kick.beat < 111) || (kick.beat >= 144 && kick.beat < 159) ||
                           (kick.beat >= 288 && kick.beat < 351);
        if (!moves) continue;
        int const root = (kick.note == 0 ? 31 : static_cast<int>(std::lround(kick.note))) % 12;
        ++roots[root];
        std::vector<int> notes = notes_at(basses, kick.beat + 0.01);
        std::vector<int> const next = notes_at(basses, kick.beat + 0.3); // basses often wait for the kick
        notes.insert(notes.end(), next.begin(), next.end());
        if (notes.empty()) continue;
        bool const fits = std::any_of(notes.begin(), notes.end(), [&](int note) { return note % 12 == root; });
        (fits ? on : off) += 1;
    }
    figure("kicks on the root, per cent", 100.0 * on / std::max(on + off, 1));
    EXPECT_GE(roots.size(), 3u);
    EXPECT_GT(on, 50);
    EXPECT_GE(on, 9 * off);
}

TEST(SoundtrackHarmony, TheAcidLineSlidesWithoutANewNote) {
    std::vector<Event> const acid = events_of({"Acid"});
    int slides = 0;
    for (Event const& event : acid) {
        if (event.slide == 0) continue;
        ++slides;
        EXPECT_NE(event.slide, event.note) << "beat " << event.beat;
        EXPECT_LT(event.after, event.beats) << "beat " << event.beat << ": it ends before it slides";
        double const arrival = event.beat + event.after;
        EXPECT_TRUE(std::none_of(acid.begin(), acid.end(),
                                 [&](Event const& other) { return std::abs(other.beat - arrival) < 0.1; }))
            << "beat " << arrival << " is struck anew";
    }
    figure("slides of the acid line", slides);
    EXPECT_GE(slides, 20);
}
