// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

/// A child process with its standard output and error in files; killed at the latest when it goes out of scope.
class Process {
public:
    /// @param arguments  program and arguments; the program is looked for in PATH
    /// @param changes    environment: NAME=value sets, NAME alone removes
    /// @param folder     working directory; "" for this one
    explicit Process(std::vector<std::string> const& arguments, std::vector<std::string> const& changes = {},
                     std::string const& folder = "");
    ~Process();
    Process(Process const&) = delete;
    Process& operator=(Process const&) = delete;

    /// Waits for the end.
    /// @return exit status, 128 + signal if one ended it; nothing if it still runs after the time
    std::optional<int> Wait(std::chrono::milliseconds longest);

    void Signal(int number) const;
    bool Running() { return !Wait(std::chrono::milliseconds(0)); }

    std::string Output() const { return Read(out_path); }
    std::string Error() const { return Read(error_path); }

    /// Processor time used so far, seconds.
    double ProcessorSeconds() const;

private:
    static std::string Read(std::string const& path);

    pid_t pid = -1;
    std::optional<int> ended;
    std::string out_path;
    std::string error_path;
};
