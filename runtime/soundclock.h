// SPDX-License-Identifier: MIT
#pragma once

#include <array>

/// Ties the show's time to the sound that plays. The sound card's clock differs from the computer's by some millionths,
/// and the position that it tells moves in steps of up to a few hundredths of a second, after each of which it is right
/// for a moment and then falls back. So the position that was furthest ahead in each quarter of a second is taken for
/// the sound's, on average over two seconds, and the show's time is led there so slowly that nobody sees it.
class SoundClock {
public:
    static constexpr double fastest = 0.001; ///< seconds that the show's time is led by in a second

    /// @param position  of the sound at show time 0 by the computer's clock, seconds
    explicit SoundClock(double position = 0) : correction(position) {}

    /// Compares the clocks; once a frame while the sound plays.
    /// @param time      show time by the computer's clock alone, seconds
    /// @param position  of the sound, as told, seconds
    void Listen(double time, double position);

    /// Forgets what was heard, for the sound was interrupted. The correction stays.
    void Forget();

    /// What is to be added to the computer's clock, seconds.
    double Correction() const { return correction; }

    /// Whether the sound has ever been heard for long enough to follow it.
    bool Followed() const { return followed; }

    /// The greatest distance so far between the show's time and the sound's, seconds.
    double GreatestDrift() const { return greatest_drift; }

private:
    static constexpr int spans = 8;
    static constexpr double span = 0.25; ///< seconds

    void Note(double time, double lead);
    double Lead() const;

    double correction;
    double greatest_drift = 0;
    bool heard = false;
    bool followed = false;
    double last_time = 0;            ///< seconds
    double last_position = 0;        ///< seconds
    double moved = 0;                ///< when the position moved last, seconds
    std::array<double, spans> leads; ///< of the sound over the computer's clock: the furthest in each span, seconds
    int filled = 0;                  ///< of the spans; the last is being filled
    double span_end = 0;             ///< seconds
};
