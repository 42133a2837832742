// SPDX-License-Identifier: MIT
#pragma once

#include "tools/film/plan.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

/// Where a film's pictures go.
class FrameSink {
public:
    virtual ~FrameSink() = default;

    /// Takes the next frame.
    /// @param pixels  height x width x 3 bytes, upper row first, red first
    /// @return "", or a line that tells why it could not
    virtual std::string Write(std::span<std::uint8_t const> pixels) = 0;

    /// After the last frame.
    /// @return the same
    virtual std::string Finish() { return ""; }
};

/// Bare pixels on standard output.
std::unique_ptr<FrameSink> make_raw_sink();

/// A YUV4MPEG2 stream on standard output: 8 bits, 4:4:4, BT.709 with the range that television has.
std::unique_ptr<FrameSink> make_y4m_sink(FilmPlan const& plan, unsigned int width, unsigned int height);

/// A line for each frame on standard output, in the format of ffmpeg's framemd5: number, twice, of the frame in the
/// whole film, 1, size in bytes, MD5 digest of its bare pixels.
std::unique_ptr<FrameSink> make_digest_sink(FilmPlan const& plan, unsigned int width, unsigned int height);

/// Rows of red, green, blue as planes of luma and two of chroma; BT.709, 8 bits, range 16 to 235 and 16 to 240.
/// @param pixels  count x 3 bytes
/// @param planes  3 x count bytes
void to_luma_and_chroma(std::span<std::uint8_t const> pixels, std::span<std::uint8_t> planes);
