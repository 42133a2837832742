// SPDX-License-Identifier: MIT
#include "spectrum.h"

#include "measure.h"
#include "soundtrack.h"

#include <kissfft/kiss_fftr.h>

#include <cassert>
#include <cmath>
#include <memory>
#include <numbers>

namespace measure {

namespace {

/// What share of a bin lies in which band.
struct Share {
    std::size_t bin;
    std::size_t band;
    double weight;
};

/// Bins are taken as `width` hertz wide, about their frequency.
std::vector<Share> shares(std::vector<double> const& edges, std::size_t bins, double width) {
    std::vector<Share> all;
    for (std::size_t band = 0; band + 1 < edges.size(); ++band) {
        for (std::size_t bin = 0; bin < bins; ++bin) {
            double const low = std::max(edges[band], (static_cast<double>(bin) - 0.5) * width);
            double const high = std::min(edges[band + 1], (static_cast<double>(bin) + 0.5) * width);
            if (high > low) all.push_back({bin, band, (high - low) / width});
        }
    }
    return all;
}

} // namespace

BandPowers::BandPowers(std::vector<float> const& signal, std::vector<double> const& edges, std::size_t size,
                       std::size_t hop)
    : my_size(size), my_hop(hop) {
    std::size_t const bins = size / 2 + 1;
    std::vector<Share> const all =
        shares(edges, bins, static_cast<double>(soundtrack::rate) / static_cast<double>(size));
    std::vector<float> window(size);
    double power = 0;
    for (std::size_t i = 0; i < size; ++i) {
        double const turn = 2 * std::numbers::pi * static_cast<double>(i) / static_cast<double>(size);
        window[i] = static_cast<float>(0.5 - 0.5 * std::cos(turn));
        power += static_cast<double>(window[i]) * window[i];
    }
    double const scale = 2 / (power * static_cast<double>(size)); // Parseval, both halves of the spectrum

    std::unique_ptr<kiss_fftr_state, void (*)(void*)> const plan(
        kiss_fftr_alloc(static_cast<int>(size), 0, nullptr, nullptr), std::free);
    assert(plan);
    std::vector<float> frame(size);
    std::vector<kiss_fft_cpx> bin(bins);
    for (std::size_t start = 0; start + size <= signal.size(); start += hop) {
        for (std::size_t i = 0; i < size; ++i) frame[i] = signal[start + i] * window[i];
        kiss_fftr(plan.get(), frame.data(), bin.data());
        std::vector<double> row(edges.size() - 1);
        for (Share const& share : all) {
            double const re = bin[share.bin].r;
            double const im = bin[share.bin].i;
            row[share.band] += share.weight * scale * (re * re + im * im);
        }
        my_rows.push_back(std::move(row));
    }
}

double BandPowers::Beat(std::size_t frame) const {
    return static_cast<double>(frame * my_hop + my_size / 2) / soundtrack::rate / soundtrack::beat_seconds;
}

std::vector<double> BandPowers::Mean(double from, double to) const {
    std::vector<double> sum(my_rows.empty() ? 0 : my_rows.front().size());
    std::size_t count = 0;
    for (std::size_t frame = 0; frame < my_rows.size(); ++frame) {
        if (Beat(frame) < from || Beat(frame) >= to) continue;
        for (std::size_t band = 0; band < sum.size(); ++band) sum[band] += my_rows[frame][band];
        ++count;
    }
    for (double& value : sum) value /= static_cast<double>(std::max<std::size_t>(count, 1));
    return sum;
}

std::vector<double> even_edges(double low, double high, std::size_t count) {
    std::vector<double> edges;
    for (std::size_t i = 0; i <= count; ++i)
        edges.push_back(low * std::pow(high / low, static_cast<double>(i) / static_cast<double>(count)));
    return edges;
}

std::vector<double> octave_edges(double first, std::size_t count, int share) {
    double const low = first * std::exp2(-0.5 / share);
    return even_edges(low, low * std::exp2(static_cast<double>(count) / share), count);
}

double centroid(std::vector<double> const& powers, std::vector<double> const& edges) {
    double sum = 0;
    double moment = 0;
    for (std::size_t band = 0; band < powers.size(); ++band) {
        sum += powers[band];
        moment += powers[band] * std::sqrt(edges[band] * edges[band + 1]);
    }
    return sum > 0 ? moment / sum : 0;
}

double power_db(double power) { return power > 1e-20 ? 10 * std::log10(power) : silence_db; }

} // namespace measure
