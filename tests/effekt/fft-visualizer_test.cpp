// SPDX-License-Identifier: MIT
#include "effekt/fft-visualizer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <complex>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>
#include <vector>

using testing::Each;
using testing::MatchesRegex;

namespace {

constexpr std::size_t points = 512;
constexpr std::size_t bins = 257;

using Block = std::array<char, points>;

Block block(std::function<int(std::size_t)> const& sample) {
    Block data{};
    for (std::size_t i = 0; i < points; ++i) data[i] = static_cast<char>(static_cast<signed char>(sample(i)));
    return data;
}

std::vector<float> spectrum(kore::FftVisualizer& fft, Block const& data, unsigned int length = points) {
    fft.Process(data.data(), length);
    return {fft.GetOutput(), fft.GetOutput() + bins};
}

/// The discrete Fourier transform by its definition, in double: |X(k)|^2, the outermost bins divided by 4.
std::vector<double> textbook(Block const& data) {
    std::vector<double> power(bins);
    for (std::size_t k = 0; k < bins; ++k) {
        std::complex<double> sum = 0;
        for (std::size_t n = 0; n < points; ++n) {
            sum += static_cast<double>(static_cast<signed char>(data[n])) *
                   std::polar(1.0, 2 * M_PI * static_cast<double>(k * n % points) / points);
        }
        power[k] = std::norm(sum) / (k == 0 || k == bins - 1 ? 4 : 1);
    }
    return power;
}

/// A radix-2 transform of N points in floats is off by a few rounding errors a stage: relative to the root of the total
/// power, at most about log2(N) eps (N. Higham, "Accuracy and Stability of Numerical Algorithms", section 24.1). The
/// bound here is on the amplitude of a bin: 9 stages x 4 eps x sqrt(N) |x|.
void expect_textbook(std::vector<float> const& power, Block const& data) {
    double energy = 0;
    for (char const c : data) energy += std::pow(static_cast<double>(static_cast<signed char>(c)), 2);
    double const bound = 9 * 4 * std::pow(2.0, -24) * std::sqrt(points * energy);
    std::vector<double> const expected = textbook(data);
    for (std::size_t k = 0; k < bins; ++k) {
        ASSERT_NEAR(std::sqrt(static_cast<double>(power[k])), std::sqrt(expected[k]), bound) << "bin " << k;
    }
}

TEST(FftVisualizer, AgreesWithTheTransformByItsDefinition) {
    std::mt19937 generator(1965);
    auto const noise = [&generator](std::size_t) { return static_cast<int>(generator() % 256) - 128; };
    auto const sine = [](double cycles, double level) {
        return [=](std::size_t i) {
            return static_cast<int>(std::lround(level * std::sin(2 * M_PI * cycles * static_cast<double>(i) / points)));
        };
    };
    struct Row {
        char const* what;
        std::function<int(std::size_t)> sample;
    };
    // clang-format off
    Row const rows[] = {
        {"noise",                 noise},
        {"more noise",            noise},
        {"a sine on bin 1",       sine(1,    127)},
        {"a sine on bin 37",      sine(37,          100)},
        {"a sine between bins",   sine(12.5,              127)},
        {"the highest sine",      sine(255,127)},
        {"an impulse",            [](std::size_t i) { return i == 0 ? 127 : 0; }},
        {"a late impulse",        [](std::size_t i) { return i == 511 ? -128 : 0; }},
        {"an impulse in between", [](std::size_t i) { return i == 200 ? 1 : 0; }},
        {"all at most",           [](std::size_t) { return 127; }},
        {"all at least",          [](std::size_t) { return -128; }},
        {"from end to end",       [](std::size_t i) { return i % 2 == 0 ? 127 : -128; }},
        {"a step",                [](std::size_t i) { return i < 256 ? 127 : -128; }},
        {"a ramp",                [](std::size_t i) { return static_cast<int>(i / 2) - 128; }},
    };
    // clang-format on
    kore::FftVisualizer fft;
    for (Row const& row : rows) {
        SCOPED_TRACE(row.what);
        Block const data = block(row.sample);
        expect_textbook(spectrum(fft, data), data);
    }
}

TEST(FftVisualizer, AgreesForManyRandomBlocks) {
    std::mt19937 generator(132);
    kore::FftVisualizer fft;
    for (int round = 0; round < 40; ++round) {
        Block const data = block([&](std::size_t) { return static_cast<int>(generator() % 256) - 128; });
        expect_textbook(spectrum(fft, data), data);
    }
}

TEST(FftVisualizer, HasAnAllZeroSpectrumForSilence) {
    kore::FftVisualizer fft;
    EXPECT_THAT(spectrum(fft, block([](auto) { return 77; })), testing::Contains(testing::Gt(1.0f)));
    EXPECT_THAT(spectrum(fft, Block{}), Each(0.0f));
}

TEST(FftVisualizer, HasAFlatSpectrumForAnImpulseAndAQuarterAtItsEnds) {
    kore::FftVisualizer fft;
    std::vector<float> const power = spectrum(fft, block([](std::size_t i) { return i == 0 ? 1 : 0; }));
    EXPECT_EQ(power.front(), 0.25f);
    EXPECT_EQ(power.back(), 0.25f);
    EXPECT_THAT(std::vector<float>(power.begin() + 1, power.end() - 1), Each(1.0f));
}

TEST(FftVisualizer, TakesBytesAsSigned) {
    kore::FftVisualizer fft;
    // 255 enters as -1: the constant part of 512 of them is -512, squared and divided by 4.
    EXPECT_EQ(spectrum(fft, block([](std::size_t) { return -1; })).front(), 512.0f * 512 / 4);
    Block all{};
    all.fill(static_cast<char>(255));
    EXPECT_EQ(spectrum(fft, all).front(), 512.0f * 512 / 4);
}

TEST(FftVisualizer, ReadsTheFirstBytesOfALongerBlockOnly) {
    std::vector<char> data(4096, 99);
    std::fill_n(data.begin(), points, 0);
    kore::FftVisualizer fft;
    fft.Process(data.data(), 4096);
    EXPECT_THAT(std::vector<float>(fft.GetOutput(), fft.GetOutput() + bins), Each(0.0f));
}

TEST(FftVisualizer, ReversesNineBits) {
    // clang-format off
    std::pair<unsigned int, unsigned int> const cases[] = {
        {0,   0},
        {1,   256},
        {256, 1},
        {511, 511},
        {2,   128},
        {3,   384},
        {16,  16},
        {512, 0},
        {513, 256},
    };
    // clang-format on
    for (auto const& [i, reversed] : cases) EXPECT_EQ(kore::FftVisualizer::ReverseBits(i), reversed) << i;
    for (unsigned int i = 0; i < points; ++i) {
        ASSERT_EQ(kore::FftVisualizer::ReverseBits(kore::FftVisualizer::ReverseBits(i)), i);
    }
}

TEST(FftVisualizer, HasAnOutputOf257) {
    EXPECT_EQ(kore::FftVisualizer::GetOutputLength(), bins);
    kore::FftVisualizer const fft;
    EXPECT_THAT(std::vector<float>(fft.GetOutput(), fft.GetOutput() + bins), Each(0.0f));
}

TEST(FftVisualizer, ReportsAShortBlockAndKeepsTheSpectrum) {
    kore::FftVisualizer fft;
    std::vector<float> const before = spectrum(fft, block([](std::size_t i) { return static_cast<int>(i % 100); }));
    for (unsigned int const length : {0u, 1u, 511u}) {
        SCOPED_TRACE(testing::Message() << length << " bytes");
        testing::internal::CaptureStdout();
        std::vector<float> const after = spectrum(fft, Block{}, length);
        EXPECT_THAT(testing::internal::GetCapturedStdout(),
                    MatchesRegex("E: effekt/fft-visualizer.cpp:[0-9]+, Process\\(\\) jee\n"));
        EXPECT_EQ(after, before);
    }
}

TEST(FftVisualizer, PrintsNothingAboutBlocksThatAreLongEnough) {
    kore::FftVisualizer fft;
    testing::internal::CaptureStdout();
    for (int call = 0; call < 2100; ++call) fft.Process(Block{}.data(), points); // past its count of 1000, twice
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST(FftVisualizer, ServesThePlayerThroughItsInterface) {
    kore::FftVisualizer fft;
    kore::MusicVisualizer& hook = fft;
    hook.Process(block([](std::size_t i) { return i == 0 ? 2 : 0; }).data(), points);
    EXPECT_EQ(hook.GetOutput()[1], 4.0f);
}

} // namespace
