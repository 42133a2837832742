// SPDX-License-Identifier: MIT
#pragma once

#include "kore/statedata.h"

/// Length of n quarter beats: n x 60 / (bpm x 4), in float. With n = 4 the length of one beat.
/// @param bpm  beats per minute, above 0
/// @return seconds
constexpr float beat2seconds(int bpm, int n) {
    return static_cast<float>(n) * 60.0f / (static_cast<float>(bpm) * 4.0f);
}

/// The show's tempo, and the length of its beat in seconds.
constexpr int beats_per_minute = 132;
constexpr float beat_seconds = beat2seconds(beats_per_minute, 4);

/// Turns show time into whole beats.
class BeatClock {
public:
    /// @param beat  length of one beat, seconds
    explicit BeatClock(float beat) : beat_length(beat), last_beat_time(-beat) {}

    /// Whether the next beat has come at a show time, in seconds.
    bool IsDue(float time) const { return time >= last_beat_time + beat_length; }

    /// Counts a beat into the state if its time has come: raises beat_count by one and sets new_beat. The first call,
    /// at time 0 or just above, counts beat 0. One beat per call at most: after a stall the show catches up instead of
    /// skipping cues.
    /// @param state  its time is read
    void Count(kore::StateData& state);

private:
    float beat_length;
    float last_beat_time; ///< show time at which the last beat was counted, seconds
};

/// Show time: the clock's, less all pauses.
class PauseClock {
public:
    bool Paused() const { return paused; }

    /// Begins or ends a pause.
    /// @param now  clock reading of this frame, seconds
    void Toggle(float now);

    /// @param now  clock reading of this frame, seconds
    /// @return show time, seconds; stands still during a pause
    float ShowTime(float now);

private:
    bool paused = false;
    float pause_start = 0;   ///< clock reading, seconds
    float current_pause = 0; ///< length of the pause in progress, seconds
    float total_paused = 0;  ///< sum of the finished ones, seconds
};
