// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

/// The score as it is played: every note, and every voice alone.
namespace soundtrack {

/// One note of the score. Beats are the show's.
struct Event {
    double beat;       ///< where it starts, swing included
    std::string voice; ///< the instrument's name
    double beats;      ///< how long it is held; drums end by themselves
    double level;      ///< 1 is the voice's normal strength
    double note;       ///< MIDI note, 0 where the score gives none
    double tone;       ///< 0 to 1
    double slide = 0;  ///< the note that it slides to, 0 where it does not
    double after = 0;  ///< beats from its start to the slide
};

/// Every note in the order of the score, listed once per run by `render --events`; empty when that fails.
/// The score is the source tree's, or that of the folder which the environment's HARDSILENCE_SCORE names.
std::vector<Event> const& events();

/// The notes of some voices, by beat.
std::vector<Event> events_of(std::vector<std::string> const& voices);

/// MIDI notes that some voices hold at a beat.
std::vector<int> notes_at(std::vector<Event> const& events, double beat);

/// Whether two notes lie a semitone, a major seventh or one of their octaves apart.
bool clash(int a, int b);

/// One channel of the stems.
struct Stem {
    std::string name;
    std::vector<float> signal; ///< -1 to 1 at 48000 Hz, mono
};

/// The sustained voices and the buses as they meet before the soft clip, rendered once per run by `render --stems`
/// (a quarter of a minute); empty when that fails.
std::vector<Stem> const& stems();

/// The stem of a name; an empty signal when there is none.
std::vector<float> const& stem(std::string const& name);

/// The voices one after the other, each struck three times four beats apart: soft (0.5), hard (1) and hard again.
struct Voices {
    std::vector<std::string> names;
    std::vector<float> signal; ///< mono
};

/// Rendered once per run by `render --voices`; empty when that fails.
Voices const& voices();

} // namespace soundtrack
