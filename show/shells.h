// SPDX-License-Identifier: MIT
#pragma once

#include "effekt/blinker.h"
#include "kore/scene.h"

#include <array>
#include <memory>

/// The three shells around the torus fountain and the four blinkers of a scene with them.
using FourBlinkers = std::array<std::shared_ptr<effect::Blinker>, 4>;

/// Makes four blinkers, each with a strobe every four beats, a fifth of a beat after the previous one, and puts them on
/// the timeline from the first beat. In the calm show only the last one sends anything: a strobe on the beat, and the
/// end of its cut on the next.
/// @param length  of the scene, beats
/// @param beat    length of one beat, seconds
FourBlinkers add_four_blinkers(kore::Scene& scene, int length, float beat);

/// Puts the shells on the timeline, one inside the other, each turning at its own rate and flashing with its own
/// blinker: the second, third and fourth.
void add_shells(kore::Scene& scene, FourBlinkers const& blinkers, int length, float beat);
