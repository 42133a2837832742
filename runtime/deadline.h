// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

/// Ends the program where a library waits for somebody who does not answer: a display, a sound server.
namespace deadline {

/// From now on, once the time is up, the program ends at once. A later call replaces an earlier one. Safe in signal
/// handlers.
/// @param line    for standard error; must stay where it is; "" for none
/// @param status  that the program ends with
void set(std::chrono::milliseconds time, char const* line, int status);

void clear();

/// What stays of two seconds for the end of the show, once it was asked for or has come.
constexpr std::chrono::milliseconds for_the_end{1500};

/// Gives the end of the show its time.
void set_for_the_end();

} // namespace deadline
