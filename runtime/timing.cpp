// SPDX-License-Identifier: MIT
#include "runtime/timing.h"

#include "runtime/commandline.h"

#include <SFML/System/Sleep.hpp>
#include <algorithm>
#include <iomanip>
#include <iostream>

namespace {

constexpr double show_rate = 60; // frames a second: strobes are made of frames

/// With vertical sync the screen sets the pace, unless it does not, or is a fast one.
Pacer pacer_for(Settings const& settings) {
    if (!settings.pace) return {0, Pacer::From::FirstFrame};
    if (vsync) return {show_rate, Pacer::From::TooFast};
    return {static_cast<double>(std::max(0, fps_limit_value)), Pacer::From::FirstFrame};
}

void sleep_for(double seconds) { sf::sleep(sf::microseconds(static_cast<sf::Int64>(seconds * 1e6))); }

} // namespace

float picture_time(float show_time, int offset) {
    return std::max(0.0f, show_time - static_cast<float>(offset) / 1000);
}

Timing::Timing(Settings const& settings, kore::MusicSFML const& music)
    : my_settings(settings), my_music(music), pacer(pacer_for(settings)) {}

void Timing::Begin() {
    constexpr double longest = 0.5;   // seconds
    constexpr double glance = 0.0005; // seconds
    clock.restart();
    if (!my_settings.sound_clock || !my_music.Playing()) return;
    while (my_music.Position() <= 0 && Seconds() < longest) sleep_for(glance);
    sound = SoundClock(static_cast<double>(my_music.Position()));
    clock.restart();
}

float Timing::Read() { return clock.getElapsedTime().asSeconds() + static_cast<float>(sound.Correction()); }

void Timing::Listen(float show_time, bool paused) {
    if (!my_settings.sound_clock) return;
    if (paused || !my_music.Playing()) return sound.Forget();
    sound.Listen(static_cast<double>(show_time) - sound.Correction(), static_cast<double>(my_music.Position()));
}

void Timing::Wait() {
    double const now = Seconds();
    double const due = pacer.Due(now);
    if (due > now) sleep_for(due - now);
}

void Timing::Report() const {
    std::cout << window_title << ": " << frames.Report() << '\n';
    if (sound.Followed()) {
        std::cout << window_title << ": picture and sound at most " << std::fixed << std::setprecision(1)
                  << sound.GreatestDrift() * 1000 << " ms apart\n";
    }
    std::cout << std::flush;
}
