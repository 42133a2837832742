// SPDX-License-Identifier: MIT
#include "variety.h"

#include "soundtrack.h"
#include "spectrum.h"

#include <algorithm>
#include <cmath>

namespace variety {

namespace {

std::vector<Bar> measure_bars() {
    constexpr double floor = 1e-9; // -90 dB: below it nothing differs
    measure::BandPowers const powers(soundtrack::recording().Middle(), measure::even_edges(40, 16000, bands), 2048,
                                     512);
    std::vector<Bar> all(soundtrack::show_beats / 4);
    std::vector<std::array<int, slots>> counts(all.size());
    for (std::size_t frame = 0; frame < powers.Frames(); ++frame) {
        auto const slot = static_cast<std::size_t>(powers.Beat(frame) * 8);
        if (slot / slots >= all.size()) break;
        ++counts[slot / slots][slot % slots];
        for (std::size_t band = 0; band < bands; ++band)
            all[slot / slots][slot % slots * bands + band] += powers.Row(frame)[band];
    }
    for (std::size_t bar = 0; bar < all.size(); ++bar)
        for (std::size_t i = 0; i < all[bar].size(); ++i)
            all[bar][i] = 10 * std::log10(all[bar][i] / std::max(counts[bar][i / bands], 1) + floor);
    return all;
}

} // namespace

std::vector<Bar> const& bars() {
    static std::vector<Bar> const all = measure_bars();
    return all;
}

double difference_db(Bar const& a, Bar const& b) {
    double sum = 0;
    for (std::size_t i = 0; i < a.size(); ++i) sum += (a[i] - b[i]) * (a[i] - b[i]);
    return std::sqrt(sum / static_cast<double>(a.size()));
}

double median(std::vector<double> values) {
    if (values.empty()) return 0;
    std::sort(values.begin(), values.end());
    std::size_t const half = values.size() / 2;
    return values.size() % 2 == 1 ? values[half] : (values[half - 1] + values[half]) / 2;
}

} // namespace variety
