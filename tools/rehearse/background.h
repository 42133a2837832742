// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

/// A program that runs in the background, and its output, line by line.
class Background {
public:
    Background() = default;
    /// Ends the program.
    ~Background();
    Background(Background const&) = delete;
    Background& operator=(Background const&) = delete;

    /// @param arguments  the program, which is looked for in PATH, and its arguments
    /// @return false where it cannot be started
    bool Start(std::vector<std::string> const& arguments);

    bool Running() const { return pid > 0; }

    /// Reads what it has printed; to be called once a frame.
    /// @return whether it has just ended
    bool Poll();

    /// The last line that it printed.
    std::string const& LastLine() const { return line; }

    /// Whether the last one that ended did so with status 0.
    bool Succeeded() const { return succeeded; }

private:
    void Read();

    pid_t pid = -1;
    int output = -1;
    std::string line;
    std::string beginning; ///< of a line that is not complete
    bool succeeded = false;
};
