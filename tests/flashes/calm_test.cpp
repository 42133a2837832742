// SPDX-License-Identifier: MIT
// The calm show before the flash meter: nothing fails, and nothing goes above two flashes a second, whatever happens.

#include "show/show.h"
#include "tests/flashes/painter.h"
#include "tests/flashes/screening.h"
#include "tests/support/effort.h"

#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <random>

using flashes::Screening;
using flashes::Tally;

namespace {

constexpr bool calm = true;
constexpr int usual_rate = 60; // frames per second

void expect_calm(Screening const& screening) {
    for (std::size_t i = 0; i < screening.Tallies().size(); ++i) {
        SCOPED_TRACE(running_order()[i].title);
        Tally const& tally = screening.Tallies()[i];
        EXPECT_EQ(tally.failing, 0);
        EXPECT_EQ(tally.above_two, 0) << "up to " << tally.most_transitions << " transitions a second";
    }
    EXPECT_FALSE(painter::saw_colour());
}

/// The random choices of a test; a failing run prints the seed that repeats them.
std::mt19937 dice() {
    unsigned int const seed = support::seed();
    std::cout << "HARDSILENCE_SEED=" << seed << std::endl;
    return std::mt19937(seed);
}

double roll(std::mt19937& from, double least, double most) {
    return std::uniform_real_distribution<double>(least, most)(from);
}

class CalmShow : public testing::TestWithParam<int> {};

/// The whole show at a rate in frames per second; played once, for it takes its time.
Screening const& whole_show(bool is_calm, int rate) {
    static std::map<std::pair<bool, int>, std::unique_ptr<Screening>> played;
    auto& screening = played[{is_calm, rate}];
    if (!screening) {
        screening = std::make_unique<Screening>(is_calm, static_cast<float>(rate));
        while (screening->Frame()) {
        }
    }
    return *screening;
}

TEST_P(CalmShow, IsForEverybodyAtEveryFrameRate) {
    Screening const& screening = whole_show(calm, GetParam());
    expect_calm(screening);
    for (Tally const& tally : screening.Tallies()) EXPECT_GT(tally.frames, 7 * GetParam());
}

INSTANTIATE_TEST_SUITE_P(Rates, CalmShow, testing::Values(24, 30, 50, 60, 120, 144), testing::PrintToStringParamName());

TEST(CalmUnrest, IsForEverybodyWhenItStartsWithAnyScene) {
    for (std::size_t first = 0; first < running_order().size(); ++first) {
        SCOPED_TRACE(running_order()[first].title);
        Screening screening(calm, usual_rate);
        while (screening.Scene() < first) {
            screening.Skip(1);
            screening.Play(1.0 / usual_rate);
        }
        screening.Play(8);
        expect_calm(screening);
    }
}

TEST(CalmUnrest, IsForEverybodyWhenScenesAreSkippedAtRandom) {
    std::mt19937 random = dice();
    Screening screening(calm, usual_rate);
    for (int i = 0; i < 40; ++i) {
        screening.Play(roll(random, 0, i % 2 == 0 ? 0.5 : 4));
        screening.Skip(roll(random, 0, 3) < 2 ? 1 : -1);
    }
    expect_calm(screening);
}

TEST(CalmUnrest, IsForEverybodyWhenItIsPausedAndResumedAtRandom) {
    std::mt19937 random = dice();
    Screening screening(calm, usual_rate);
    for (int i = 0; i < 60; ++i) {
        screening.PlayUnseen(roll(random, 0, 2));
        screening.Play(roll(random, 0, 1.5));
        screening.TogglePause();
        screening.Play(roll(random, 0, 0.6));
        screening.TogglePause();
    }
    expect_calm(screening);
}

/// Stalls for a second every three, from a place on. Three of these reach every place of the show.
void stall_through(double place) {
    SCOPED_TRACE(testing::Message() << "stalls from " << place << " s on");
    Screening screening(calm, usual_rate);
    screening.Play(place);
    while (screening.Frame()) {
        screening.Stall(1);
        screening.Play(2);
    }
    expect_calm(screening);
}

TEST(CalmUnrest, IsForEverybodyWhenItStallsAnywhere) {
    for (double const place : {0.0, 1.0, 2.0}) stall_through(place);
}

TEST(CalmPictures, AreNotEmptyForLongerThanInTheFullShow) {
    std::vector<Tally> const& full = whole_show(false, usual_rate).Tallies();
    std::vector<Tally> const& quiet = whole_show(calm, usual_rate).Tallies();
    for (std::size_t i = 0; i < full.size(); ++i) {
        EXPECT_LE(quiet[i].longest_empty, full[i].longest_empty) << running_order()[i].title;
    }
    EXPECT_GT(full[0].longest_empty, 0); // before the first word
}

} // namespace
