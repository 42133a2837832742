// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kore {

/// What a file must keep to before the sound library sees it.
namespace soundtracklimits {
constexpr std::size_t most_bytes = 64U << 20U; ///< of the file: five minutes of stereo without compression
constexpr unsigned int most_channels = 8;
constexpr unsigned int least_rate = 4000;  ///< Hz
constexpr unsigned int most_rate = 192000; ///< Hz
constexpr std::size_t head_bytes = 65536;  ///< in which the header lies
} // namespace soundtracklimits

/// Whether the first bytes of a file are the header of an Ogg Vorbis, FLAC or RIFF WAVE file whose channels and rate
/// are within the limits. Formats: Xiph.Org, "Vorbis I", 4.2.2, and RFC 3533, section 6; RFC 9639,
/// sections 8.1 and 8.2; Microsoft and IBM, "Multimedia Programming Interface and Data Specifications 1.0", chapter 3.
/// @param head  the file's first head_bytes bytes, or all of it
bool is_soundtrack(std::string_view head);

/// Whether it is a regular file of a size within the limits that begins like a soundtrack. Never waits for a pipe or a
/// device.
bool may_be_soundtrack(std::string const& path);

} // namespace kore
