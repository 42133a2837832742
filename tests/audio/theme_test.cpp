// SPDX-License-Identifier: MIT
#include "figure.h"
#include "score.h"
#include "soundtrack.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <set>

// The theme's form, and where the piece states it: from the score's notes.

namespace {

using soundtrack::Event;
using soundtrack::events_of;

constexpr double plain_statement = 64; ///< where the lead plays the theme for the first time as it is written

/// The lead's line of one bar of the plain statement: on each sixteenth the note that sounds, 0 for a rest.
std::array<int, 16> bar(int number) {
    std::vector<Event> const lead = events_of({"Lead"});
    std::array<int, 16> line{};
    for (int step = 0; step < 16; ++step) {
        std::vector<int> const notes = soundtrack::notes_at(lead, plain_statement + 4 * number + 0.25 * step + 0.125);
        line[static_cast<std::size_t>(step)] = notes.empty() ? 0 : notes.front();
    }
    return line;
}

/// Notes of the plain statement, in order.
std::vector<int> melody(double from, double to) {
    std::vector<int> notes;
    for (Event const& event : events_of({"Lead"}))
        if (event.beat >= from && event.beat < to) notes.push_back(static_cast<int>(std::lround(event.note)));
    return notes;
}

std::vector<int> intervals(std::vector<int> const& notes) {
    std::vector<int> all;
    for (std::size_t i = 1; i < notes.size(); ++i) all.push_back(notes[i] - notes[i - 1]);
    return all;
}

struct Statement {
    std::string voice;
    double beat;
    int note; ///< its first
};

/// Where one voice plays these intervals without another onset between them.
std::vector<Statement> statements(std::vector<int> const& shape) {
    std::vector<Statement> found;
    std::set<std::string> voices;
    for (Event const& event : soundtrack::events())
        if (event.note > 0) voices.insert(event.voice);
    for (std::string const& voice : voices) {
        std::vector<Event> const line = events_of({voice});
        for (Event const& first : line) {
            double at = first.beat;
            double note = first.note;
            bool good = true;
            for (std::size_t i = 0; i < shape.size() && good; ++i) {
                auto const next = std::find_if(line.begin(), line.end(), [&](Event const& e) { return e.beat > at; });
                if (next == line.end() || next->beat > at + 8)
                    good = false;
                else {
                    at = next->beat;
                    note += shape[i];
                    good =
                        std::any_of(next, line.end(), [&](Event const& e) { return e.beat == at && e.note == note; });
                }
            }
            if (good) found.push_back({voice, first.beat, static_cast<int>(std::lround(first.note))});
        }
    }
    return found;
}

std::vector<int> hook() { return intervals(melody(plain_statement, plain_statement + 4)); }

} // namespace

TEST(SoundtrackTheme, HasTheFormAAAndBWithAHookOfOneBarThatComesBack) {
    std::array<int, 16> const a = bar(0);
    std::array<int, 16> const varied = bar(1);
    std::array<int, 16> const b = bar(3);
    EXPECT_EQ(a, bar(2));
    EXPECT_TRUE(std::equal(a.begin(), a.begin() + 8, varied.begin())) << "the second bar opens like the first";
    EXPECT_NE(a, varied);
    int same = 0;
    for (std::size_t i = 0; i < 16; ++i) same += a[i] == b[i] && a[i] != 0 ? 1 : 0;
    EXPECT_LE(same, 4) << "the last bar is new";
}

TEST(SoundtrackTheme, BreathesTwiceABar) {
    for (int number = 0; number < 4; ++number) {
        std::array<int, 16> const line = bar(number);
        auto const rests = std::count(line.begin(), line.end(), 0);
        figure("rests in bar " + std::to_string(number + 1), static_cast<double>(rests));
        EXPECT_GE(rests, 2);
        EXPECT_LE(rests, 8);
    }
}

TEST(SoundtrackTheme, ACellOfThreeIntervalsReturns) {
    std::vector<int> const all = intervals(melody(plain_statement, plain_statement + 16));
    ASSERT_GE(all.size(), 12u);
    std::ptrdiff_t best = 0;
    for (std::size_t i = 0; i + 3 <= all.size(); ++i) {
        std::ptrdiff_t count = 0;
        for (std::size_t k = 0; k + 3 <= all.size(); ++k)
            count += std::equal(all.begin() + static_cast<long>(i), all.begin() + static_cast<long>(i) + 3,
                                all.begin() + static_cast<long>(k))
                         ? 1
                         : 0;
        best = std::max(best, count);
    }
    figure("times a cell of three intervals is heard", static_cast<double>(best));
    EXPECT_GE(best, 2);
}

TEST(SoundtrackTheme, FallsFromAFlatToFSharp) {
    std::vector<int> const last = melody(plain_statement + 12, plain_statement + 16);
    std::vector<int> const fall = {68, 66};
    EXPECT_NE(std::search(last.begin(), last.end(), fall.begin(), fall.end()), last.end());
}

TEST(SoundtrackTheme, TwoVoicesAskAndAnswer) {
    // Somewhere the lead plays the hook's first half and another voice the second, in turns.
    std::vector<Event> const asking = events_of({"Lead"});
    std::vector<Event> const answering = events_of({"Wail"});
    int turns = 0;
    for (int start = 0; start < 384; start += 4) {
        int asked = 0;
        int answered = 0;
        for (int step = 0; step < 16; ++step) {
            double const beat = start + 0.25 * step + 0.125;
            bool const asks = !soundtrack::notes_at(asking, beat).empty();
            bool const answers = !soundtrack::notes_at(answering, beat).empty();
            asked += asks && !answers ? 1 : 0;
            answered += answers && !asks ? 1 : 0;
        }
        turns += asked >= 4 && answered >= 4 ? 1 : 0;
    }
    figure("bars in which one lead asks and one answers", turns);
    EXPECT_GE(turns, 6);
}

TEST(SoundtrackTheme, IsStatedInEverySectionButTheIntro) {
    std::vector<Statement> const all = statements(hook());
    for (soundtrack::Stretch const& section : soundtrack::sections()) {
        auto const here = std::count_if(all.begin(), all.end(), [&](Statement const& statement) {
            return statement.beat >= section.from && statement.beat < section.to;
        });
        figure(std::string("statements of the hook, ") + section.name, static_cast<double>(here));
        EXPECT_GE(here, section.from > 0 ? 1 : 0) << section.name;
    }
}

TEST(SoundtrackTheme, IsReharmonisedOnceAndDisplacedOnce) {
    std::vector<int> const half = intervals(melody(plain_statement, plain_statement + 8)); // two bars, past chance
    std::vector<Event> const roots = events_of({"Sub", "Reese", "Bass"});
    int reharmonised = 0;
    int displaced = 0;
    for (Statement const& statement : statements(half)) {
        std::vector<int> const low = soundtrack::notes_at(roots, statement.beat + 0.55);
        if (!low.empty() && (*std::min_element(low.begin(), low.end()) - statement.note) % 12 != 0) ++reharmonised;
        double const in_beat = statement.beat - std::floor(statement.beat);
        if (in_beat > 0.2 && in_beat < 0.8) ++displaced;
    }
    figure("statements over another root", reharmonised);
    figure("statements off the beat", displaced);
    EXPECT_GE(reharmonised, 1);
    EXPECT_GE(displaced, 1);
}
