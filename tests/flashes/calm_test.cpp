// The calm show before the flash meter: nothing fails, and nothing goes above two flashes a second, whatever happens.

#include "show/show.h"
#include "tests/flashes/painter.h"
#include "tests/flashes/screening.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <random>

using flashes::Screening;
using flashes::Tally;

namespace {

constexpr bool calm = true;
constexpr float usual_rate = 60; // frames per second

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
    char const* const given = std::getenv("HARDSILENCE_SEED");
    unsigned int const seed =
        given ? static_cast<unsigned int>(std::strtoul(given, nullptr, 10)) : std::random_device()();
    std::cout << "HARDSILENCE_SEED=" << seed << std::endl;
    return std::mt19937(seed);
}

double roll(std::mt19937& from, double least, double most) {
    return std::uniform_real_distribution<double>(least, most)(from);
}

class CalmShow : public testing::TestWithParam<int> {};

TEST_P(CalmShow, IsForEverybodyAtEveryFrameRate) {
    Screening screening(calm, static_cast<float>(GetParam()));
    while (screening.Frame()) {
    }
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
            screening.Play(1 / usual_rate);
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

/// Stalls for a second every three, from a place on.
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
    std::mt19937 random = dice();
    stall_through(roll(random, 0, 3));
}

TEST(CalmPictures, AreNotEmptyForLongerThanInTheFullShow) {
    std::vector<Tally> tallies[2];
    for (bool const is_calm : {false, true}) {
        Screening screening(is_calm, usual_rate);
        while (screening.Frame()) {
        }
        tallies[is_calm] = screening.Tallies();
    }
    for (std::size_t i = 0; i < tallies[0].size(); ++i) {
        EXPECT_LE(tallies[1][i].longest_empty, tallies[0][i].longest_empty) << running_order()[i].title;
    }
    EXPECT_GT(tallies[0][0].longest_empty, 0); // before the first word
}

} // namespace
