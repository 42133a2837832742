// SPDX-License-Identifier: MIT
// Pace and sound in virtual time.

#include "runtime/frametimes.h"
#include "runtime/pacer.h"
#include "runtime/soundclock.h"
#include "runtime/timing.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace {

constexpr double frame = 1.0 / 60; // seconds

TEST(Pacer, HoldsItsRateHoweverLateTheSleepsWake) {
    Pacer pacer(60, Pacer::From::FirstFrame);
    std::minstd_rand random(132);
    double now = 100;
    double const start = pacer.Due(now);
    double shown = start;
    for (int i = 0; i < 600; ++i) {
        now = shown + 0.004; // drawn
        double const due = pacer.Due(now);
        EXPECT_GE(due, now);
        shown = due + static_cast<double>(random() % 1000) * 1e-6; // up to a millisecond late
    }
    EXPECT_NEAR(shown - start, 10, 0.0011);
}

TEST(Pacer, StartsAnewAfterALateFrameInsteadOfHurrying) {
    Pacer pacer(60, Pacer::From::FirstFrame);
    double const first = pacer.Due(0);
    EXPECT_EQ(first, 0);
    EXPECT_EQ(pacer.Due(0.5), 0.5);
    EXPECT_DOUBLE_EQ(pacer.Due(0.501), 0.5 + frame);
    EXPECT_DOUBLE_EQ(pacer.Due(0.5 + 2.5 * frame), 0.5 + 2.5 * frame); // late by half an interval: the grid stays
    EXPECT_DOUBLE_EQ(pacer.Due(0.5 + 2.6 * frame), 0.5 + 3 * frame);
}

TEST(Pacer, LeavesAScreenOf60HertzAlone) {
    for (double const rate : {59.94, 60.0, 60.02, 50.0, 30.0}) {
        Pacer pacer(60, Pacer::From::TooFast);
        double shown = 0;
        for (int refresh = 1; refresh <= 500; ++refresh) {
            double const drawn = shown + 0.002;
            EXPECT_EQ(pacer.Due(drawn), drawn) << rate;
            shown = refresh / rate;
        }
    }
}

TEST(Pacer, SetsInWhereNothingElseHoldsTheLoop) {
    Pacer pacer(60, Pacer::From::TooFast);
    double now = 0;
    for (int i = 0; i < 60; ++i) EXPECT_EQ(pacer.Due(now += 0.005), now);
    pacer.Due(now += 0.005);
    double const first = pacer.Due(now += 0.005);
    EXPECT_DOUBLE_EQ(pacer.Due(first + 0.005), first + frame);
}

TEST(Pacer, WithoutARateDoesNothing) {
    Pacer pacer(0, Pacer::From::FirstFrame);
    for (double const now : {0.0, 0.001, 0.002}) EXPECT_EQ(pacer.Due(now), now);
}

/// A sound card: its clock runs at a rate of its own, and what it tells moves in steps.
struct Sound {
    double rate = 1;     ///< of its clock, by the computer's
    double start = 0;    ///< what it has played at time 0, seconds
    double step = 0.023; ///< seconds

    double Heard(double time) const { return start + rate * time; }
    double Told(double time) const { return std::floor(Heard(time) / step) * step; }
};

/// Plays a whole show.
/// @return the greatest distance between picture and sound after some seconds, seconds
double greatest_distance(SoundClock& clock, Sound const& sound, double after, bool listen = true) {
    std::minstd_rand random(384);
    double greatest = 0;
    double before = clock.Correction();
    double last = 0;
    for (int i = 1; i <= 10472; ++i) {
        double const time = i * frame + static_cast<double>(random() % 2000) * 1e-6;
        if (listen) clock.Listen(time, sound.Told(time));
        EXPECT_LE(std::abs(clock.Correction() - before), SoundClock::fastest * (time - last) + 1e-12);
        before = clock.Correction();
        last = time;
        if (time > after) greatest = std::max(greatest, std::abs(sound.Heard(time) - time - clock.Correction()));
    }
    return greatest;
}

constexpr double wanted = 0.010; // seconds

TEST(SoundClock, KeepsPictureAndSoundTogetherOverTheShow) {
    for (double const parts_per_million : {-500.0, -60.0, 0.0, 60.0, 500.0}) {
        for (double const step : {0.005, 0.020, 0.02322, 0.0464}) {
            SCOPED_TRACE(testing::Message() << parts_per_million << " ppm, steps of " << step);
            Sound const sound{1 + parts_per_million * 1e-6, 0, step};
            SoundClock clock;
            EXPECT_LT(greatest_distance(clock, sound, 0), wanted);
            EXPECT_LT(clock.GreatestDrift(), wanted);
        }
    }
}

TEST(SoundClock, IsNeededForThat) {
    SoundClock clock;
    EXPECT_GT(greatest_distance(clock, {1 + 60e-6}, 0, false), wanted);
}

TEST(SoundClock, LeadsAWrongStartBackAtATenthOfAPercent) {
    for (double const start : {0.030, -0.030}) {
        SoundClock clock;
        EXPECT_LT(greatest_distance(clock, {1, start}, 25), wanted) << start;
        EXPECT_NEAR(clock.GreatestDrift(), 0.030, 0.004);
    }
}

TEST(SoundClock, StartsWhereTheSoundIs) {
    SoundClock clock(0.023);
    EXPECT_EQ(clock.Correction(), 0.023);
    EXPECT_FALSE(clock.Followed());
    EXPECT_LT(greatest_distance(clock, {1, 0.023}, 0), wanted);
    EXPECT_TRUE(clock.Followed());
}

TEST(SoundClock, HoldsItsCorrectionWhereTheSoundHangsOrIsForgottenOrHasEnded) {
    SoundClock clock;
    Sound const sound{1, 0.030};
    double time = 0;
    for (; time < 10; time += frame) clock.Listen(time, sound.Told(time));
    double const led = clock.Correction();
    EXPECT_NEAR(led, 0.0095, 0.001);
    for (; time < 20; time += frame) clock.Listen(time, sound.Told(10)); // it hangs
    EXPECT_NEAR(clock.Correction(), led, 0.0003);                        // it takes some frames to know
    double const held = clock.Correction();
    for (; time < 30; time += frame) clock.Listen(time, 0); // from the start again
    EXPECT_EQ(clock.Correction(), held);
    clock.Forget();
    EXPECT_EQ(clock.Correction(), held);
}

TEST(PictureTime, IsTheShowsMovedByTheOffsetAndNotBelowZero) {
    for (float const time : {0.0f, 0.1f, 174.5f}) EXPECT_EQ(picture_time(time, 0), time);
    EXPECT_FLOAT_EQ(picture_time(3, 250), 2.75f);
    EXPECT_FLOAT_EQ(picture_time(3, -40), 3.04f);
    EXPECT_EQ(picture_time(0.1f, 250), 0);
}

TEST(FrameTimes, TellThePercentilesOfAllFrames) {
    FrameTimes times;
    EXPECT_EQ(times.Percentile(0.5), 0);
    double now = 5;
    times.Shown(now);
    for (int i = 1; i <= 100; ++i) times.Shown(now += i * 0.001);
    EXPECT_NEAR(times.Percentile(0.01), 0.001, 1e-6);
    EXPECT_NEAR(times.Percentile(0.5), 0.050, 1e-6);
    EXPECT_NEAR(times.Percentile(0.99), 0.099, 1e-6);
    EXPECT_NEAR(times.Percentile(1), 0.100, 1e-6);
    EXPECT_EQ(times.Report(), "100 frame times in ms:  1% 1.00  50% 50.00  95% 95.00  99% 99.00  longest 100.00");
}

} // namespace
