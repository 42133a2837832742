// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <vector>

/// Runs programs, and code that may end its process, in a child process.
namespace support {

/// Where and how long a child runs.
struct Surroundings {
    std::string folder = {};                   ///< working directory; "" for this process's own
    std::vector<std::string> environment = {}; ///< changes: NAME=value sets, NAME alone removes
    std::chrono::milliseconds limit{60000};    ///< after that, the child and its children are killed
};

/// How a child ended, and what it wrote.
struct Outcome {
    int status = -1;    ///< exit status; -1 where a signal ended it; 126 if the folder could not be entered
    int signal = 0;     ///< the signal that ended it, 0 for none; SIGKILL at the time limit
    std::string output; ///< from standard output
    std::string error;  ///< from standard error
};

/// Changes this process's environment.
/// @param changes  NAME=value sets, NAME alone removes
void change_environment(std::vector<std::string> const& changes);

/// Runs a function of this program in a copy of the process. Where a signal ends it, no core file is written.
/// @param work  what it returns is the exit status
Outcome run_in_child(std::function<int()> const& work, Surroundings const& surroundings = {});

/// Runs a program.
/// @param arguments  the program, which is looked for in PATH, and its arguments; status 127 if it cannot be started
Outcome run(std::vector<std::string> const& arguments, Surroundings const& surroundings = {});

/// Runs a command line of sh.
Outcome run_shell(std::string const& line, Surroundings const& surroundings = {});

} // namespace support
