// SPDX-License-Identifier: MIT
#include "tools/record/beats.h"

#include "runtime/beatclock.h"
#include "runtime/playback.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <sstream>

namespace {

constexpr std::size_t most_steps = 1000000; // all moments of the longest show, and a few twice
constexpr std::size_t places = 3;

std::vector<std::string> split(std::string const& text, char separator) {
    std::vector<std::string> parts;
    std::istringstream stream(text + separator);
    for (std::string part; std::getline(stream, part, separator);) parts.push_back(part);
    return parts;
}

/// Whether a decimal number has more places than a moment.
bool is_finer(std::string const& text) {
    std::size_t const point = text.find('.');
    if (point == std::string::npos) return false;
    return text.find_first_not_of('0', std::min(point + 1 + places, text.size())) != std::string::npos;
}

/// The moments of a list, each once, in the order of the list.
class Moments {
public:
    /// @return false if there have been too many
    bool Add(Millibeats at) {
        if (++steps > most_steps) return false;
        auto const index = static_cast<std::size_t>(at);
        if (!taken[index]) found.push_back(at);
        taken[index] = true;
        return true;
    }
    /// @param parts  from, to, step
    bool AddRange(std::vector<std::string> const& parts) {
        auto const from = parse_beat(parts[0]);
        auto const to = parse_beat(parts[1]);
        auto const step = parse_beat(parts[2]);
        if (!from || !to || !step || *step == 0 || *from >= *to) return false;
        for (Millibeats at = *from; at < *to; at += *step) {
            if (!Add(at)) return false;
        }
        return true;
    }
    std::vector<Millibeats> Take() { return std::move(found); }

private:
    std::vector<Millibeats> found;
    std::vector<bool> taken = std::vector<bool>(std::size_t{most_beats} * one_beat + 1);
    std::size_t steps = 0;
};

} // namespace

FrameGrid::FrameGrid(FrameRate rate) : my_rate(rate) {
    BeatClock clock(beat_seconds);
    kore::StateData state;
    for (int frame = 0; state.beat_count < most_beats; ++frame) {
        state.time = frame_time(frame, rate.PerSecond());
        state.new_beat = false;
        clock.Count(state);
        if (state.new_beat) counted.push_back(frame);
    }
}

int FrameGrid::FrameAt(Millibeats at) const {
    // frames : millibeats = 60 x frames of the rate : 1000 x tempo x seconds of the rate
    long long const frames_part = 60LL * my_rate.frames;
    long long const beats_part = 1LL * one_beat * beats_per_minute * my_rate.seconds;
    auto const nominal = static_cast<int>((frames_part * at + beats_part - 1) / beats_part); // rounded up
    auto const beat = static_cast<std::size_t>(at / one_beat);
    if (at % one_beat == 0) return counted[beat]; // at some rates the clock is a frame early
    return std::clamp(nominal, counted[beat], counted[beat + 1]);
}

int frame_at(Millibeats at) {
    static FrameGrid const grid({recorded_rate, 1});
    return grid.FrameAt(at);
}

Millibeats moment_of(int frame) {
    constexpr long long minute = 60; // seconds
    auto at =
        static_cast<Millibeats>(static_cast<long long>(frame) * one_beat * beats_per_minute / (minute * recorded_rate));
    while (frame_at(at) > frame) --at; // a beat that the clock counts on the frame after
    return at;
}

std::optional<Millibeats> parse_beat(std::string const& text) {
    char const* const end = text.data() + text.size();
    double beats = 0;
    auto const [rest, error] = std::from_chars(text.data(), end, beats, std::chars_format::fixed);
    if (error != std::errc() || rest != end || !(beats >= 0 && beats <= most_beats) || std::signbit(beats)) return {};
    if (is_finer(text)) return {};
    return static_cast<Millibeats>(std::lround(beats * one_beat));
}

std::optional<std::vector<Millibeats>> parse_beats(std::string const& text) {
    Moments moments;
    for (std::string const& item : split(text, ',')) {
        std::vector<std::string> const parts = split(item, ':');
        if (parts.size() == 3) {
            if (!moments.AddRange(parts)) return {};
            continue;
        }
        auto const at = parts.size() == 1 ? parse_beat(item) : std::nullopt;
        if (!at || !moments.Add(*at)) return {};
    }
    return moments.Take();
}

std::string padded_beat(Millibeats at) {
    char text[32];
    std::snprintf(text, sizeof text, "%03d.%03d", at / one_beat, at % one_beat);
    return text;
}

std::string short_beat(Millibeats at) {
    std::string text = std::to_string(at / one_beat);
    if (at % one_beat == 0) return text;
    text += padded_beat(at % one_beat).substr(3);
    return text.substr(0, text.find_last_not_of('0') + 1);
}
