// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/stepper.h"
#include "tests/flashes/flashmeter.h"

#include <vector>

namespace flashes {

/// What the flash meter said about the frames of one scene.
struct Tally {
    int frames = 0;
    int failing = 0;
    int too_fast = 0;
    int too_long = 0;
    int striped = 0;
    int above_two = 0;        ///< frames above two flashes a second
    int most_transitions = 0; ///< within a second
    int longest_empty = 0;    ///< frames in a row that show nothing
};

/// What the painter has painted last, as the meter sees it: mean levels of blocks of pixels.
Picture painted();

/// One performance of the show before the flash meter, with all that can happen to it.
class Screening {
public:
    /// Makes the show on the painter, whose canvas can serve one screening at a time.
    /// @param calm  the look
    /// @param rate  frames per second
    Screening(bool calm, float rate);

    /// Plays, draws and watches the next frame.
    /// @return false, and nothing is drawn, once the show has ended
    bool Frame();

    /// Plays on for some time, or to the end.
    /// @param seconds  on the wall
    void Play(double seconds);

    /// Plays on for some time unseen: neither drawn nor watched.
    void PlayUnseen(double seconds);

    void Skip(int scenes);                      ///< 1 or -1, as the keys do
    void TogglePause();                         ///< as the key does
    void Stall(double seconds);                 ///< the next frame comes so much later than it should
    std::size_t Scene() const { return scene; } ///< that plays, as an index of the running order
    Verdict const& Last() const { return verdict; }

    /// By scene.
    std::vector<Tally> const& Tallies() const { return tallies; }
    Tally Total() const;

private:
    double Now() const { return static_cast<double>(frames) / rate + stalled; }
    void Count(Picture const& picture);

    kore::Demo demo{beat_seconds};
    Stepper stepper{demo, beat_seconds};
    PauseClock pauses;
    FlashMeter meter;
    float rate;
    int frames = 0;
    double stalled = 0; ///< seconds
    std::size_t scene = 0;
    int empty = 0; ///< frames in a row
    Verdict verdict;
    std::vector<Tally> tallies;
};

} // namespace flashes
