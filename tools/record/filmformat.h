// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// What a film's ending stands for.
struct FilmFormat {
    char const* ending; ///< ".mp4"
    char const* video;  ///< arguments for ffmpeg, separated by spaces
    char const* sound;  ///< the same; "" for a format without sound
    bool even;          ///< width and height have to be: two pixels share a colour
    int rate;           ///< frames a second, unless asked for otherwise
    unsigned int width; ///< pixels, the same
    unsigned int height;
};

/// @return the format of a path's ending, in any case; null if there is none
FilmFormat const* find_format(std::string const& path);

/// ".mp4, .mkv, .webm, .gif, .webp"
std::string format_list();
