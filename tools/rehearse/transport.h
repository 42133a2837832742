// SPDX-License-Identifier: MIT
#pragma once

#include "tools/record/beats.h"

#include <optional>

/// Where a rehearsal is, and how it goes on: the position in a show, which plays or stands, its speed, and a loop.
class Transport {
public:
    /// @param frames  length of the show, above 0, 60 a second
    explicit Transport(int frames) : my_frames(frames) {}

    /// Another length, for the show was changed; the position stays, if it can.
    void SetFrames(int frames);

    /// The frame that is due, 0 to the last.
    int Frame() const;

    /// Its time, seconds. Between two frames it goes on; see Advance.
    double Time() const { return position / recorded_rate; }

    bool Playing() const { return playing; }
    void SetPlaying(bool play) { playing = play; }

    /// Goes to the beginning of a frame; one that does not exist becomes the nearest.
    void Seek(int frame);

    /// Steps from where the show is, on or back, by so many of each; to beats that are whole. While it plays, back from
    /// just behind a beat is the beat before that.
    void StepFrames(int count);
    void StepBeats(int count);
    void StepBars(int count); ///< of four beats

    /// Half or double the speed, from 1/8 to 2.
    void Slower();
    void Faster();
    void NormalSpeed() { speed = 1; }
    double Speed() const { return speed; }

    /// Sets an end of the loop at the frame that is due, and the other end where it is not on its own side.
    void MarkFrom();
    void MarkTo();
    void ClearLoop() { loop.reset(); }

    /// The frames that are looped: from the first up to, but not including, the second.
    struct Loop {
        int from;
        int to;
        bool operator==(Loop const&) const = default;
    };
    std::optional<Loop> const& Looped() const { return loop; }

    /// Lets time pass, while it plays: at the end of the loop the show goes on at its beginning, at its own end it
    /// stands.
    /// @param seconds  of the computer's clock
    /// @return whether the position jumped
    bool Advance(double seconds);

private:
    void StepGrid(int count, int beats);
    void Goto(Millibeats at);

    int my_frames;
    double position = 0; ///< frames
    bool playing = false;
    double speed = 1;
    std::optional<Loop> loop;
};
