// SPDX-License-Identifier: MIT
#pragma once

#include "tools/record/filmoptions.h"
#include "tools/record/timetable.h"

#include <string>

/// How long the music is.
struct Soundtrack {
    long long samples = 0; ///< of one channel; 0 where there is none
    int rate = 48000;      ///< samples a second
};

/// Which frames a film, or a part of it, is made of. A film of the whole show has a frame for every moment of the
/// music; after the show's end, while the music fades, its last picture stays.
struct FilmPlan {
    FrameRate rate = {};
    int first = 0; ///< frame, counted from the start of the whole film
    int end = 0;   ///< past the last frame
    int drawn = 0; ///< frames from this one on repeat the picture before it
    int whole = 0; ///< frames of the whole film

    int Count() const { return end - first; }

    /// The frame whose picture is shown in this one.
    int PictureOf(int frame) const { return frame < drawn ? frame : drawn - 1; }

    /// The pictures to draw are those of the frames from the first up to, but not including, the end.
    int FirstPicture() const { return PictureOf(first); }
    int EndOfPictures() const { return PictureOf(end - 1) + 1; }

    bool operator==(FilmPlan const&) const = default;
};

/// Finds the frames that the options ask for.
/// @param scene  a scene's name, which the beats count from; "" for the show
/// @param rate   of the film
/// @param plan   set where all is well
/// @return "", or a line that tells what the options ask for in vain
std::string plan_film(Timetable const& timetable, std::string const& scene, FilmOptions const& options, FrameRate rate,
                      Soundtrack const& music, FilmPlan& plan);
