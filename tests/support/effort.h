// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <random>
#include <string>

/// What the environment asks of the tests.
namespace support {

/// HARDSILENCE_LONG=1: the long forms of tests, which take minutes.
inline bool long_run() {
    char const* const value = std::getenv("HARDSILENCE_LONG");
    return value && std::string(value) == "1";
}

/// @return HARDSILENCE_SEED, which repeats a run that printed its seed; without it, a different number each time
inline unsigned int seed() {
    char const* const given = std::getenv("HARDSILENCE_SEED");
    return given ? static_cast<unsigned int>(std::strtoul(given, nullptr, 10)) : std::random_device()();
}

} // namespace support
