#include "tools/record/beats.h"

#include "runtime/beatclock.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <sstream>

namespace {

// frames : millibeats = 60 x rate : 1000 x tempo
constexpr long long frames_part = 60LL * recorded_rate;
constexpr long long beats_part = 1LL * one_beat * beats_per_minute;

constexpr std::size_t most_moments = 10000;

std::vector<std::string> split(std::string const& text, char separator) {
    std::vector<std::string> parts;
    std::istringstream stream(text + separator);
    for (std::string part; std::getline(stream, part, separator);) parts.push_back(part);
    return parts;
}

std::optional<Millibeats> parse_beat(std::string const& text) {
    char const* const end = text.data() + text.size();
    double beats = 0;
    auto const [rest, error] = std::from_chars(text.data(), end, beats, std::chars_format::fixed);
    if (error != std::errc() || rest != end || !(beats >= 0 && beats <= most_beats) || std::signbit(beats)) return {};
    return static_cast<Millibeats>(std::floor(beats * one_beat + 1e-6)); // 3.001 x 1000 is slightly below 3001
}

/// @return false if there are too many already
bool add_once(std::vector<Millibeats>& moments, Millibeats at) {
    if (std::find(moments.begin(), moments.end(), at) != moments.end()) return true;
    moments.push_back(at);
    return moments.size() <= most_moments;
}

bool add_range(std::vector<Millibeats>& moments, std::vector<std::string> const& parts) {
    auto const from = parse_beat(parts[0]);
    auto const to = parse_beat(parts[1]);
    auto const step = parse_beat(parts[2]);
    if (!from || !to || !step || *step == 0 || *from >= *to) return false;
    for (Millibeats at = *from; at < *to; at += *step) {
        if (!add_once(moments, at)) return false;
    }
    return true;
}

/// The frames on which the show's clock counts its beats.
std::vector<int> frames_of_whole_beats() {
    BeatClock clock(beat_seconds);
    kore::StateData state;
    std::vector<int> frames;
    for (int frame = 0; state.beat_count < most_beats; ++frame) {
        state.time = static_cast<float>(frame) / static_cast<float>(recorded_rate);
        state.new_beat = false;
        clock.Count(state);
        if (state.new_beat) frames.push_back(frame);
    }
    return frames;
}

} // namespace

int frame_at(Millibeats at) {
    static std::vector<int> const counted = frames_of_whole_beats();
    auto const nominal = static_cast<int>((frames_part * at + beats_part - 1) / beats_part); // rounded up
    return std::max(nominal, counted[static_cast<std::size_t>(at / one_beat)]);
}

std::optional<std::vector<Millibeats>> parse_beats(std::string const& text) {
    std::vector<Millibeats> moments;
    for (std::string const& item : split(text, ',')) {
        std::vector<std::string> const parts = split(item, ':');
        if (parts.size() == 3) {
            if (!add_range(moments, parts)) return {};
            continue;
        }
        auto const at = parts.size() == 1 ? parse_beat(item) : std::nullopt;
        if (!at || !add_once(moments, *at)) return {};
    }
    return moments;
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
