// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace support {

/// A RIFF WAVE file of silent 16-bit samples, of one channel as far as its length goes.
inline std::string wave(std::uint32_t rate, std::uint32_t samples, unsigned int channels = 1) {
    std::string bytes;
    auto const u32 = [&](std::uint32_t n) {
        for (int shift = 0; shift < 32; shift += 8) bytes += static_cast<char>(n >> shift & 255);
    };
    auto const u16 = [&](std::uint32_t n) {
        for (int shift = 0; shift < 16; shift += 8) bytes += static_cast<char>(n >> shift & 255);
    };
    bytes += "RIFF";
    u32(36 + samples * 2);
    bytes += "WAVEfmt ";
    u32(16);
    u16(1); // PCM
    u16(channels);
    u32(rate);
    u32(rate * 2);
    u16(2);
    u16(16);
    bytes += "data";
    u32(samples * 2);
    return bytes + std::string(std::size_t{samples} * 2, '\0');
}

} // namespace support
