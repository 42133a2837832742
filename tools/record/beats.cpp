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

std::optional<Millibeats> parse_beat(std::string const& text) {
    char const* const end = text.data() + text.size();
    double beats = 0;
    auto const [rest, error] = std::from_chars(text.data(), end, beats, std::chars_format::fixed);
    if (error != std::errc() || rest != end || !(beats >= 0 && beats <= most_beats) || std::signbit(beats)) return {};
    if (is_finer(text)) return {};
    return static_cast<Millibeats>(std::lround(beats * one_beat));
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
