// SPDX-License-Identifier: MIT
#include "tests/flashes/flashmeter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace flashes {

namespace {

constexpr double tick = 1e-6; ///< seconds; less than that apart is at the same time
constexpr double second = 1;

/// WCAG's formula for one channel of an sRGB colour.
float linear(int level) {
    double const c = level / 255.0;
    return static_cast<float>(c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4));
}

std::array<float, 256> make_linear() {
    std::array<float, 256> table{};
    for (int level = 0; level < 256; ++level) table[static_cast<std::size_t>(level)] = linear(level);
    return table;
}

void forget(std::deque<double>& times, double before) {
    while (!times.empty() && times.front() < before) times.pop_front();
}

bool enough(std::size_t count, std::size_t all) {
    return static_cast<double>(count) >= least_share * static_cast<double>(all);
}

/// One line through a picture, as indices of its luminances.
struct Line {
    std::size_t first;
    std::size_t step;
    std::size_t length;
};

std::vector<Line> lines_through(std::size_t w, std::size_t h) {
    std::vector<Line> lines;
    for (std::size_t y = 0; y < h; ++y) lines.push_back({y * w, 1, w});
    for (std::size_t x = 0; x < w; ++x) lines.push_back({x, w, h});
    // Diagonals: from the upper edge down to the right and to the left, then from the side edges.
    for (std::size_t x = 0; x < w; ++x) {
        lines.push_back({x, w + 1, std::min(w - x, h)});
        lines.push_back({x, w - 1, std::min(x + 1, h)});
    }
    for (std::size_t y = 1; y < h; ++y) {
        lines.push_back({y * w, w + 1, std::min(w, h - y)});
        lines.push_back({y * w + w - 1, w - 1, std::min(w, h - y)});
    }
    return lines;
}

/// Where along a line the luminance begins to rise after a fall.
void find_rises(Picture const& picture, Line const& line, std::vector<std::size_t>& rises) {
    rises.clear();
    float low = picture.luminances[line.first];
    float high = low;
    bool falling = true;
    for (std::size_t i = 0; i < line.length; ++i) {
        float const value = picture.luminances[line.first + i * line.step];
        if (falling) {
            low = std::min(low, value);
            if (value - low < least_change) continue;
            rises.push_back(i);
            high = value;
            falling = false;
        } else {
            high = std::max(high, value);
            if (high - value < least_change) continue;
            low = value;
            falling = true;
        }
    }
}

void mark_stripes(Line const& line, std::vector<std::size_t> const& rises, std::vector<bool>& striped) {
    for (std::size_t from = 0; from + most_pairs + 1 < rises.size(); ++from) {
        std::size_t shortest = line.length;
        std::size_t longest_pair = 0;
        std::size_t to = from;
        for (; to + 1 < rises.size(); ++to) {
            std::size_t const pair = rises[to + 1] - rises[to];
            shortest = std::min(shortest, pair);
            longest_pair = std::max(longest_pair, pair);
            if (2 * longest_pair > 3 * shortest) break;
        }
        if (to - from <= most_pairs) continue;
        for (std::size_t i = rises[from]; i < rises[to]; ++i) striped[line.first + i * line.step] = true;
    }
}

} // namespace

float luminance(unsigned char red, unsigned char green, unsigned char blue) {
    static std::array<float, 256> const table = make_linear();
    return 0.2126f * table[red] + 0.7152f * table[green] + 0.0722f * table[blue];
}

double striped_share(Picture const& picture) {
    std::vector<bool> striped(picture.luminances.size());
    std::vector<std::size_t> rises;
    for (Line const& line : lines_through(picture.width, picture.height)) {
        find_rises(picture, line, rises);
        mark_stripes(line, rises, striped);
    }
    return static_cast<double>(std::ranges::count(striped, true)) / static_cast<double>(striped.size());
}

Verdict FlashMeter::Watch(double time, Picture const& picture) {
    std::size_t const size = picture.luminances.size();
    float const mean = std::reduce(picture.luminances.begin(), picture.luminances.end()) / static_cast<float>(size);
    if (blocks.empty()) {
        for (float const l : picture.luminances) blocks.push_back({.low = l, .high = l});
        lowest = highest = {mean, picture.luminances};
        last_time = time;
    }
    for (std::size_t i = 0; i < size; ++i) blocks[i].Watch(last_time, time, picture.luminances[i]);
    WatchTogether(time);
    if (WatchMean(mean, picture)) mean_transitions.push_back(time);
    forget(together_transitions, time - second + tick);
    forget(mean_transitions, time - second + tick);

    Verdict verdict;
    verdict.transitions = static_cast<int>(std::max(together_transitions.size(), mean_transitions.size()));
    verdict.too_fast = verdict.transitions > most_transitions;
    verdict.too_long = TooLong(time);
    verdict.striped = Striped(time, picture);
    was_above_two = verdict.AboveTwoFlashes();
    last_time = time;
    return verdict;
}

void FlashMeter::Block::Watch(double frame_before, double time, float luminance) {
    low = std::min(low, luminance);
    high = std::max(high, luminance);
    bool const up = direction <= 0 && luminance - low >= least_change && low < brightest_dark;
    bool const down = direction >= 0 && high - luminance >= least_change && luminance < brightest_dark;
    if (!up && !down) return;
    direction = up ? 1 : -1;
    low = high = luminance;
    from = frame_before;
    to = time;
}

void FlashMeter::WatchTogether(double time) {
    std::size_t up = 0;
    std::size_t down = 0;
    for (Block const& block : blocks) {
        if (block.direction == 0 || (block.to < time && block.from < time - together - tick)) continue;
        ++(block.direction > 0 ? up : down);
    }
    if (!enough(std::max(up, down), blocks.size())) return;
    int const direction = up > down ? 1 : -1;
    if (direction == together_direction) return;
    together_direction = direction;
    together_transitions.push_back(time);
}

bool FlashMeter::WatchMean(float mean, Picture const& picture) {
    if (mean <= lowest.mean) lowest = {mean, picture.luminances};
    if (mean >= highest.mean) highest = {mean, picture.luminances};
    auto const moved = [&](Extreme const& from, float direction) {
        if (direction * (mean - from.mean) < least_change || std::min(mean, from.mean) >= brightest_dark) return false;
        std::size_t count = 0;
        for (std::size_t i = 0; i < blocks.size(); ++i) {
            count += direction * (picture.luminances[i] - from.luminances[i]) >= least_change;
        }
        return enough(count, blocks.size());
    };
    bool const up = mean_direction <= 0 && moved(lowest, 1);
    bool const down = mean_direction >= 0 && moved(highest, -1);
    if (!up && !down) return false;
    mean_direction = up ? 1 : -1;
    lowest = highest = {mean, picture.luminances};
    return true;
}

bool FlashMeter::TooLong(double time) {
    if (was_above_two) above_two.push_back({last_time, time});
    while (!above_two.empty() && above_two.front().to <= time - long_span) above_two.pop_front();
    double sum = 0;
    for (Stretch const& stretch : above_two) sum += stretch.to - std::max(stretch.from, time - long_span);
    return sum > longest + tick;
}

bool FlashMeter::Striped(double time, Picture const& picture) {
    bool const is = striped_share(picture) >= least_share;
    bool const was_long = striped_since >= 0 && time - striped_since >= pattern_time - tick;
    if (!is) {
        striped_since = -1;
    } else if (striped_since < 0) {
        striped_since = time;
    }
    return was_long;
}

} // namespace flashes
