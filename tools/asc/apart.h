// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <string>

namespace asc {

/// What work in a process of its own may take.
struct Limits {
    std::chrono::milliseconds time;
    std::size_t memory; ///< bytes of address space
    std::size_t result; ///< bytes
};

/// What came of it.
struct Result {
    std::string bytes;   ///< that the work returned
    std::string failure; ///< "", or why there are none, such as "it ended by signal 11 (Segmentation fault)"
};

/// Does work in a process of its own, so that its crash, its hang or its hunger ends nothing else. What it prints is
/// discarded. Call it while this process has one thread.
Result run_apart(std::function<std::string()> const& work, Limits const& limits);

} // namespace asc
