// SPDX-License-Identifier: MIT
#include "measure.h"

#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <numbers>

namespace measure {

namespace {

constexpr double rate = 48000;
constexpr std::size_t samples_per_ms = 48;

double decibels(double power) { return power > 1e-20 ? 10 * std::log10(power) : silence_db; }

/// One second-order section, in place.
void biquad(std::vector<float>& signal, double frequency, double quality, bool high_pass) {
    double const omega = 2 * std::numbers::pi * frequency / rate;
    double const alpha = std::sin(omega) / (2 * quality);
    double const c = std::cos(omega);
    double const a0 = 1 + alpha;
    double const edge = (high_pass ? 1 + c : 1 - c) / (2 * a0);
    double const middle = (high_pass ? -2 : 2) * edge;
    double x1 = 0;
    double x2 = 0;
    double y1 = 0;
    double y2 = 0;
    for (float& sample : signal) {
        double const x = sample;
        double const y = edge * (x + x2) + middle * x1 + (2 * c * y1 - (1 - alpha) * y2) / a0;
        x2 = x1;
        x1 = x;
        y2 = y1;
        y1 = y;
        sample = static_cast<float>(y);
    }
}

/// Mean energy of milliseconds [from, to); those before the first count as silent.
double mean(std::vector<double> const& energy_ms, long from, long to) {
    double sum = 0;
    for (long i = std::max(from, 0L); i < std::min(to, static_cast<long>(energy_ms.size())); ++i)
        sum += energy_ms[static_cast<std::size_t>(i)];
    return sum / static_cast<double>(to - from);
}

/// How much louder the 4 ms from `ms` are than the 8 ms before, decibels. The floor keeps faint noise from counting.
double rise_db(std::vector<double> const& energy_ms, long ms) {
    constexpr double floor = 1e-5 * samples_per_ms; // -50 dB
    return decibels((mean(energy_ms, ms, ms + 4) + floor) / (mean(energy_ms, ms - 8, ms) + floor));
}

/// The number after the last `label` in a text; false when there is none.
bool last_number(std::string const& text, std::string const& label, double& number) {
    std::size_t const at = text.rfind(label);
    return at != std::string::npos && std::sscanf(text.c_str() + at + label.size(), " %lf", &number) == 1;
}

} // namespace

double level_db(std::vector<float> const& signal, std::size_t from, std::size_t to) {
    to = std::min(to, signal.size());
    if (from >= to) return silence_db;
    double sum = 0;
    for (std::size_t i = from; i < to; ++i) sum += static_cast<double>(signal[i]) * signal[i];
    return decibels(sum / static_cast<double>(to - from));
}

double peak_db(std::vector<float> const& signal, std::size_t from, std::size_t to) {
    to = std::min(to, signal.size());
    double peak = 0;
    for (std::size_t i = from; i < to; ++i) peak = std::max(peak, std::abs(static_cast<double>(signal[i])));
    return decibels(peak * peak);
}

std::vector<float> band(std::vector<float> const& signal, double low, double high) {
    constexpr std::array<double, 2> butterworth = {0.54119610, 1.30656296};
    std::vector<float> filtered(signal);
    for (double quality : butterworth) {
        if (low > 0) biquad(filtered, low, quality, true);
        if (high > 0) biquad(filtered, high, quality, false);
    }
    return filtered;
}

double correlation(std::vector<float> const& a, std::vector<float> const& b) {
    std::size_t const count = std::min(a.size(), b.size());
    double sum_a = 0;
    double sum_b = 0;
    for (std::size_t i = 0; i < count; ++i) {
        sum_a += a[i];
        sum_b += b[i];
    }
    double const mean_a = sum_a / static_cast<double>(std::max<std::size_t>(count, 1));
    double const mean_b = sum_b / static_cast<double>(std::max<std::size_t>(count, 1));
    double aa = 0;
    double bb = 0;
    double ab = 0;
    for (std::size_t i = 0; i < count; ++i) {
        double const x = a[i] - mean_a;
        double const y = b[i] - mean_b;
        aa += x * x;
        bb += y * y;
        ab += x * y;
    }
    return aa > 0 && bb > 0 ? ab / std::sqrt(aa * bb) : 0;
}

std::vector<double> milliseconds(std::vector<float> const& signal) {
    std::vector<double> energy_ms(signal.size() / samples_per_ms);
    for (std::size_t i = 0; i < energy_ms.size() * samples_per_ms; ++i)
        energy_ms[i / samples_per_ms] += static_cast<double>(signal[i]) * signal[i];
    return energy_ms;
}

Onset find_onset(std::vector<float> const& signal, double seconds) {
    constexpr long step = samples_per_ms / 4;
    auto const energy = [&](long index) {
        double sum = 0;
        for (long i = index * step; i < (index + 1) * step; ++i)
            if (i >= 0 && i < static_cast<long>(signal.size()))
                sum += static_cast<double>(signal[static_cast<std::size_t>(i)]) * signal[static_cast<std::size_t>(i)];
        return sum;
    };
    double const expected = seconds * rate / step;
    auto const at = [&](double ms) { return std::lround(expected + 4 * ms); };
    long peak = at(-2);
    for (long i = at(-2); i < at(2); ++i)
        if (energy(i) > energy(peak)) peak = i;
    double before = 1e-7; // -80 dB: fainter noise does not count
    for (long i = at(-12); i < at(-3); ++i) before += energy(i) / static_cast<double>(at(-3) - at(-12));
    double const threshold = std::max(std::sqrt(energy(peak) * before), 0.01 * energy(peak));
    long first = peak;
    while (first > at(-12) && energy(first - 1) >= threshold) --first;
    return {(static_cast<double>(first) - expected) / 4, decibels(energy(peak) / before)};
}

std::vector<double> folded_rises(std::vector<double> const& energy_ms, std::vector<double> const& seconds,
                                 int reach_ms) {
    std::vector<double> sums;
    for (int offset = -reach_ms; offset <= reach_ms; ++offset) {
        double sum = 0;
        for (double at : seconds) sum += std::max(0.0, rise_db(energy_ms, std::lround(1000 * at) + offset));
        sums.push_back(sum);
    }
    return sums;
}

std::vector<float> average(std::vector<float> const& signal, std::vector<std::size_t> const& starts,
                           std::size_t length) {
    std::vector<float> mean(length);
    for (std::size_t start : starts)
        for (std::size_t i = 0; i < length && start + i < signal.size(); ++i)
            mean[i] += signal[start + i] / static_cast<float>(starts.size());
    return mean;
}

Match find_shape(std::vector<float> const& signal, std::size_t start, std::vector<float> const& shape,
                 double reach_ms) {
    constexpr long step = samples_per_ms / 6;
    Match best;
    long const reach = std::lround(reach_ms * samples_per_ms);
    for (long offset = -reach; offset <= reach; offset += step) {
        long const first = static_cast<long>(start) + offset;
        if (first < 0 || static_cast<std::size_t>(first) + shape.size() > signal.size()) continue;
        double product = 0;
        double power = 0;
        double shape_power = 0;
        for (std::size_t i = 0; i < shape.size(); ++i) {
            double const sample = signal[static_cast<std::size_t>(first) + i];
            product += sample * shape[i];
            power += sample * sample;
            shape_power += static_cast<double>(shape[i]) * shape[i];
        }
        double const likeness = product / std::sqrt(power * shape_power + 1e-20);
        if (likeness > best.likeness) best = {static_cast<double>(offset) / samples_per_ms, likeness};
    }
    return best;
}

Loudness loudness(std::string const& path) {
    std::string said;
    Loudness result;
    std::string const command =
        "ffmpeg -hide_banner -nostats -nostdin -i '" + path + "' -af ebur128=peak=true:framelog=verbose -f null - 2>&1";
    result.valid = run(command, said) == 0 && last_number(said, "I:", result.integrated_lufs) &&
                   last_number(said, "Peak:", result.true_peak_dbtp);
    return result;
}

int run(std::string const& command, std::string& output) {
    FILE* pipe = popen(command.c_str(), "r");
    if (pipe == nullptr) return -1;
    std::array<char, 4096> chunk{};
    std::size_t got = 0;
    while ((got = std::fread(chunk.data(), 1, chunk.size(), pipe)) > 0) output.append(chunk.data(), got);
    int const status = pclose(pipe);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace measure
