#pragma once

#include <cstdlib>
#include <random>
#include <string>

/// What whoever runs the tests asks of them, in the environment.
namespace support {

/// HARDSILENCE_LONG=1: take the minutes that it takes.
inline bool long_run() {
    char const* const value = std::getenv("HARDSILENCE_LONG");
    return value && std::string(value) == "1";
}

/// @return HARDSILENCE_SEED, to repeat a run that printed its own; else another number each time
inline unsigned int seed() {
    char const* const given = std::getenv("HARDSILENCE_SEED");
    return given ? static_cast<unsigned int>(std::strtoul(given, nullptr, 10)) : std::random_device()();
}

} // namespace support
