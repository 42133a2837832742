// SPDX-License-Identifier: MIT
#include "tools/record/filmformat.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

namespace {

// The show is in black and white, and yet the colours are converted by the matrix that high definition expects.
#define HS_FOR_PLAYERS                                                                                                 \
    "-vf scale=out_color_matrix=bt709:out_range=tv:flags=accurate_rnd+full_chroma_int "                                \
    "-pix_fmt yuv420p -color_range tv -colorspace bt709 -color_primaries bt709 -color_trc bt709 "

// clang-format off
constexpr FilmFormat formats[] = {
    // ending  video
    //         sound                                 even   rate width height
    {".mp4",  HS_FOR_PLAYERS "-c:v libx264 -preset medium -crf 16 -movflags +faststart",
              "-c:a aac -b:a 320k",                  true,  60,  1920, 1080},
    {".mkv",  "-c:v ffv1 -level 3 -g 1 -slicecrc 1 -pix_fmt bgr0",
              "-c:a flac -sample_fmt s16",           false, 60,  1920, 1080},
    {".webm", HS_FOR_PLAYERS "-c:v libvpx-vp9 -crf 24 -b:v 0 -row-mt 1 -deadline good -cpu-used 4",
              "-c:a libopus -b:a 192k",              true,  60,  1920, 1080},
    {".gif",  "-pix_fmt gray -loop 0",
              "",                                    false, 25,  512,  384},
    {".webp", "-c:v libwebp_anim -quality 60 -compression_level 4 -loop 0",
              "",                                    false, 25,  512,  384},
};
// clang-format on

#undef HS_FOR_PLAYERS

std::string lower_ending(std::string const& path) {
    std::string ending = std::filesystem::path(path).extension().string();
    for (char& c : ending) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return ending;
}

} // namespace

FilmFormat const* find_format(std::string const& path) {
    auto const found = std::ranges::find(formats, lower_ending(path), &FilmFormat::ending);
    return found == std::end(formats) ? nullptr : found;
}

std::string format_list() {
    std::string list;
    for (FilmFormat const& format : formats) list += (list.empty() ? "" : ", ") + std::string(format.ending);
    return list;
}
