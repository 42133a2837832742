// SPDX-License-Identifier: MIT
#include "tools/record/framerate.h"

#include "tools/arguments/arguments.h"

#include <algorithm>

namespace {

constexpr int most_frames = 1000000;
constexpr int most_seconds = 10000;

// As fractions, so that comparing is exact.
constexpr FrameRate slowest{24000, 1001};
constexpr FrameRate fastest{240, 1};

bool at_most(FrameRate const& a, FrameRate const& b) {
    return 1LL * a.frames * b.seconds <= 1LL * b.frames * a.seconds;
}

} // namespace

std::string FrameRate::Text() const {
    return std::to_string(frames) + (seconds == 1 ? "" : "/" + std::to_string(seconds));
}

long long FrameRate::SampleAt(long long frame, int sample_rate) const {
    return (2 * frame * seconds * sample_rate + frames) / (2LL * frames);
}

long long FrameRate::FramesFor(long long samples, int sample_rate) const {
    long long const second = 1LL * seconds * sample_rate;
    return (samples * frames + second - 1) / second; // rounded up
}

std::optional<FrameRate> parse_rate(std::string const& text) {
    auto const slash = std::min(text.find('/'), text.size());
    FrameRate rate;
    if (!read_number(text.substr(0, slash), 1, most_frames, rate.frames)) return {};
    if (slash < text.size() && !read_number(text.substr(slash + 1), 1, most_seconds, rate.seconds)) return {};
    if (!at_most(slowest, rate) || !at_most(rate, fastest)) return {};
    return rate;
}
