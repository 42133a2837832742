// SPDX-License-Identifier: MIT
// The flash meter before films whose verdict is known.

#include "tests/flashes/flashmeter.h"

#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <numbers>

namespace {

using flashes::Picture;
using flashes::Verdict;

constexpr std::size_t width = 40;
constexpr std::size_t height = 30;

/// @param at  luminance at a place, in blocks
Picture picture_of(std::function<float(std::size_t x, std::size_t y)> const& at) {
    Picture picture{width, height, {}};
    for (std::size_t y = 0; y < height; ++y) {
        for (std::size_t x = 0; x < width; ++x) picture.luminances.push_back(at(x, y));
    }
    return picture;
}

Picture even(float luminance) {
    return picture_of([=](std::size_t, std::size_t) { return luminance; });
}

/// What a film was found to be.
struct Finding {
    int most = 0; ///< transitions within a second
    bool too_fast = false;
    bool too_long = false;
    bool striped = false;
};

/// @param film  the picture at a time in seconds
Finding watch(double seconds, double rate, std::function<Picture(double)> const& film) {
    flashes::FlashMeter meter;
    Finding finding;
    for (int i = 0; i < static_cast<int>(seconds * rate); ++i) {
        Verdict const verdict = meter.Watch(i / rate, film(i / rate));
        finding.most = std::max(finding.most, verdict.transitions);
        finding.too_fast |= verdict.too_fast;
        finding.too_long |= verdict.too_long;
        finding.striped |= verdict.striped;
        EXPECT_EQ(verdict.AboveTwoFlashes(), verdict.transitions > 4);
    }
    return finding;
}

/// Whether a square wave is at its second level.
bool high(double time, double hertz) { return std::fmod(time * hertz + 1e-9, 1.0) >= 0.5; }

constexpr double rates[] = {24, 30, 50, 60, 120, 144};

struct Flicker {
    char const* name;
    double hertz;
    float low, high;
    std::size_t columns; ///< how many of the forty flash
    int most;            ///< transitions within a second
    bool too_fast, too_long;
};

// clang-format off
constexpr Flicker flickers[] = {
    // name                            Hz   levels        columns most fast   long
    {"StandsStill",                    0,   0,     1,     40,     0,   false, false},
    {"FlashesTwiceASecond",            2,   0,     1,     40,     4,   false, false},
    {"FlashesThriceASecond",           3,   0,     1,     40,     6,   false, true},
    {"FlashesFourTimesASecond",        4,   0,     1,     40,     8,   true,  true},
    {"FlashesTenTimesASecond",         10,  0,     1,     40,     20,  true,  true},
    {"CoversAQuarter",                 4,   0,     1,     10,     8,   true,  true},
    {"CoversLessThanAQuarter",         4,   0,     1,     9,      0,   false, false},
    {"ChangesByElevenPercent",         4,   0.3f,  0.41f, 40,     8,   true,  true},
    {"ChangesByNinePercent",           4,   0.3f,  0.39f, 40,     0,   false, false},
    {"IsBrightEvenWhenDark",           4,   0.81f, 1,     40,     0,   false, false},
    {"IsJustNotBrightWhenDark",        4,   0.79f, 1,     40,     8,   true,  true},
};
// clang-format on

class FlashMeter : public testing::TestWithParam<Flicker> {};

TEST_P(FlashMeter, FindsInAFilmWhat) {
    Flicker const& flicker = GetParam();
    for (double const rate : rates) {
        SCOPED_TRACE(rate);
        Finding const finding = watch(8, rate, [&](double time) {
            bool const on = high(time, flicker.hertz);
            return picture_of(
                [&](std::size_t x, std::size_t) { return x < flicker.columns && on ? flicker.high : flicker.low; });
        });
        EXPECT_EQ(finding.most, flicker.most);
        EXPECT_EQ(finding.too_fast, flicker.too_fast);
        EXPECT_EQ(finding.too_long, flicker.too_long);
        EXPECT_FALSE(finding.striped);
    }
}

INSTANTIATE_TEST_SUITE_P(Films, FlashMeter, testing::ValuesIn(flickers),
                         [](testing::TestParamInfo<Flicker> const& film) { return std::string(film.param.name); });

TEST(FlashMeterRamps, CountFromTurningPointToTurningPointHoweverSlow) {
    struct Row {
        double hertz; ///< of rising and falling in steps far below a tenth
        int most;
    };
    for (Row const& row : {Row{0.25, 1}, Row{1, 2}, Row{4, 8}}) {
        SCOPED_TRACE(row.hertz);
        Finding const finding = watch(8, 60, [&](double time) {
            return even(static_cast<float>(0.5 - 0.5 * std::cos(2 * std::numbers::pi * row.hertz * time)));
        });
        EXPECT_EQ(finding.most, row.most);
    }
}

TEST(FlashMeterRamps, CountInOneDirectionOnce) {
    EXPECT_EQ(watch(8, 60, [](double time) { return even(static_cast<float>(time / 8)); }).most, 1);
}

TEST(FlashMeterAreas, CountASweepThatNoQuarterMakesTogether) {
    // A dark curtain goes down and up again, four times a second: 8 of 40 columns at a time.
    Finding const finding = watch(8, 60, [](double time) {
        double const phase = std::fmod(time * 4, 1.0);
        double const edge = width * (phase < 0.5 ? 2 * phase : 2 - 2 * phase);
        return picture_of([&](std::size_t x, std::size_t) { return static_cast<double>(x) < edge ? 0.0f : 1.0f; });
    });
    EXPECT_TRUE(finding.too_fast);
}

TEST(FlashMeterAreas, CountAContrastThatTurnsRoundAsOneTransition) {
    // Three fifths black, two fifths white, and the other way round, on every beat of 132 a minute.
    Finding const finding = watch(8, 60, [](double time) {
        bool const on = high(time, 1.1);
        return picture_of([&](std::size_t x, std::size_t) { return (x < 24) == on ? 1.0f : 0.0f; });
    });
    EXPECT_EQ(finding.most, 3);
    EXPECT_FALSE(finding.too_fast || finding.too_long);
}

TEST(FlashMeterAreas, LeaveOutWhatFlashesHereAndThere) {
    // Every block on its own, four times a second, one after the other.
    Finding const finding = watch(8, 60, [](double time) {
        return picture_of([&](std::size_t x, std::size_t y) {
            return high(time + static_cast<double>((x * 7 + y * 11) % 30) / 120, 4) ? 1.0f : 0.0f;
        });
    });
    EXPECT_EQ(finding.most, 0);
}

TEST(FlashMeterTime, ForgetsWhatIsMoreThanASecondAgo) {
    flashes::FlashMeter meter;
    int frame = 0;
    for (; frame < 8; ++frame) meter.Watch(frame / 60.0, even(frame % 2 == 0 ? 0 : 1));
    EXPECT_EQ(meter.Watch(frame++ / 60.0, even(1)).transitions, 7);
    EXPECT_EQ(meter.Watch(1 + 6.5 / 60, even(1)).transitions, 1);
    EXPECT_EQ(meter.Watch(1 + 7.5 / 60, even(1)).transitions, 0);
}

TEST(FlashMeterTime, AllowsThreeFlashesASecondForFourOfFiveSeconds) {
    // Five transitions or six within a second begin 0.7 s after the flicker does and end 0.5 s after it.
    auto const film = [](double seconds) {
        return watch(12, 60, [=](double time) { return even(time < seconds && high(time, 3) ? 1.0f : 0.0f); });
    };
    EXPECT_FALSE(film(3).too_long);
    EXPECT_TRUE(film(6).too_long);
}

/// Stripes of so many pairs over a part of the picture.
Picture stripes(double pairs, double covered, bool across, float dark = 0, float light = 1) {
    return picture_of([=](std::size_t x, std::size_t y) {
        double const along = across ? static_cast<double>(y) / height : static_cast<double>(x) / width;
        double const other = across ? static_cast<double>(x) / width : static_cast<double>(y) / height;
        return other < covered && high(along, pairs) ? light : dark;
    });
}

TEST(FlashMeterStripes, AreMoreThanFivePairsThatAreAlike) {
    for (bool const across : {false, true}) {
        EXPECT_LT(flashes::striped_share(stripes(5, 1, across)), 0.25);
        EXPECT_GT(flashes::striped_share(stripes(8, 1, across)), 0.7);
        EXPECT_LT(flashes::striped_share(stripes(8, 0.2, across)), 0.25);
        EXPECT_LT(flashes::striped_share(stripes(8, 1, across, 0.3f, 0.39f)), 0.01);
    }
    Picture const diagonal = picture_of([](std::size_t x, std::size_t y) { return (x + y) % 6 < 3 ? 0.0f : 1.0f; });
    EXPECT_GT(flashes::striped_share(diagonal), 0.5);
    Picture const growing =
        picture_of([](std::size_t x, std::size_t) { return std::fmod(std::sqrt(x * 4.0), 2) < 1 ? 0.0f : 1.0f; });
    EXPECT_LT(flashes::striped_share(growing), 0.25);
}

TEST(FlashMeterStripes, FailOnceTheyAreHeldForHalfASecond) {
    auto const film = [](double seconds) {
        return watch(2, 60, [=](double time) { return time < seconds ? stripes(8, 1, false) : even(0); }).striped;
    };
    EXPECT_FALSE(film(0.45));
    EXPECT_TRUE(film(0.55));
    flashes::FlashMeter meter; // one frame that stays long
    EXPECT_FALSE(meter.Watch(0, stripes(8, 1, false)).striped);
    EXPECT_TRUE(meter.Watch(0.5, even(0)).striped);
}

TEST(RelativeLuminance, FollowsTheFormulaForSrgb) {
    EXPECT_FLOAT_EQ(flashes::luminance(0, 0, 0), 0);
    EXPECT_FLOAT_EQ(flashes::luminance(255, 255, 255), 1);
    EXPECT_NEAR(flashes::luminance(255, 0, 0), 0.2126f, 1e-6);
    EXPECT_NEAR(flashes::luminance(0, 255, 0), 0.7152f, 1e-6);
    EXPECT_NEAR(flashes::luminance(0, 0, 255), 0.0722f, 1e-6);
    EXPECT_NEAR(flashes::luminance(128, 128, 128), 0.215861f, 1e-6); // ((128/255 + 0.055) / 1.055)^2.4
    EXPECT_NEAR(flashes::luminance(10, 10, 10), 10 / 255.0 / 12.92, 1e-6);
}

} // namespace
