// SPDX-License-Identifier: MIT
#include "tests/flashes/screening.h"

#include "runtime/frame.h"
#include "show/show.h"
#include "tests/flashes/painter.h"
#include "tests/show/wholeshow.h"
#include "tests/support/withlook.h"

#include <algorithm>

namespace flashes {

namespace {

constexpr std::size_t width = 256; // pixels
constexpr std::size_t height = 192;
constexpr std::size_t block = 8; // pixels along each side

/// Whether a picture is white all over, or black: no block of it is a tenth darker, or lighter.
bool shows_nothing(Picture const& picture) {
    auto const [low, high] = std::ranges::minmax(picture.luminances);
    return low > 1 - least_change || high < least_change;
}

} // namespace

Picture painted() {
    std::span<float const> const levels = painter::canvas().Levels();
    Picture picture{width / block, height / block, std::vector<float>(width / block * (height / block))};
    for (std::size_t y = 0; y < height; ++y) {
        for (std::size_t x = 0; x < width; ++x) {
            picture.luminances[y / block * picture.width + x / block] += levels[y * width + x];
        }
    }
    for (float& l : picture.luminances) l /= block * block;
    return picture;
}

Screening::Screening(bool calm, float rate_) : rate(rate_) {
    painter::reset(width, height);
    init_gl();
    support::WithLook const look({.standard_wire = true, .calm = calm});
    init_demo(demo, nullptr, beat_seconds);
    tallies.resize(demo.GetScenes().size());
    for (std::size_t i = 0; i < tallies.size(); ++i) {
        demo.GetScenes()[i]->SetPrepare(std::make_shared<wholeshow::StartNotice>([this, i] { scene = i; }));
    }
}

bool Screening::Frame() {
    auto const now = static_cast<float>(Now());
    stepper.Update(pauses.ShowTime(now), rate);
    if (demo.GetFinished()) return false;
    stepper.Draw({});
    Picture const picture = painted();
    verdict = meter.Watch(Now(), picture);
    Count(picture);
    ++frames;
    return true;
}

void Screening::Count(Picture const& picture) {
    empty = shows_nothing(picture) ? empty + 1 : 0;
    Tally& tally = tallies[scene];
    ++tally.frames;
    tally.failing += verdict.Fails();
    tally.too_fast += verdict.too_fast;
    tally.too_long += verdict.too_long;
    tally.striped += verdict.striped;
    tally.above_two += verdict.AboveTwoFlashes();
    tally.most_transitions = std::max(tally.most_transitions, verdict.transitions);
    tally.longest_empty = std::max(tally.longest_empty, empty);
}

void Screening::Play(double seconds) {
    double const end = Now() + seconds;
    while (Now() < end && Frame()) {
    }
}

void Screening::PlayUnseen(double seconds) {
    for (double const end = Now() + seconds; Now() < end; ++frames) {
        stepper.Update(pauses.ShowTime(static_cast<float>(Now())), rate);
    }
}

void Screening::Skip(int scenes) {
    if (scenes > 0) {
        demo.SkipSceneFw();
    } else {
        demo.SkipSceneBw();
    }
}

void Screening::TogglePause() { pauses.Toggle(static_cast<float>(Now())); }

void Screening::Stall(double seconds) { stalled += seconds; }

Tally Screening::Total() const {
    Tally total;
    for (Tally const& t : tallies) {
        total.frames += t.frames;
        total.failing += t.failing;
        total.too_fast += t.too_fast;
        total.too_long += t.too_long;
        total.striped += t.striped;
        total.above_two += t.above_two;
        total.most_transitions = std::max(total.most_transitions, t.most_transitions);
        total.longest_empty = std::max(total.longest_empty, t.longest_empty);
    }
    return total;
}

} // namespace flashes
