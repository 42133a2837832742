// SPDX-License-Identifier: MIT
#pragma once

#include "tests/faults/matrix/matrix.h"

#include <chrono>
#include <optional>
#include <string>
#include <vector>

/// Cells that run a program.
namespace faults {

using Words = std::vector<std::string>;

/// @return the first and then the second
Words joined(Words first, Words const& second);

/// The environment in which one call of a library goes wrong; see badlibrary.cpp.
/// @param way  "fails", "hangs", "crashes" or "aborts"
Words bad_library(std::string const& call, std::string const& way);

/// A way to start the show.
struct Kind {
    char const* name;
    Words options;
    Words environment;
};

/// The programs.
std::string program(std::string const& name);
inline std::string const show = program("hardsilence");

/// How long a program may take to show its first picture, to tell of a fault, and to end when it is asked to.
constexpr std::chrono::milliseconds at_once{2000};

/// How long the program waits for a display that does not answer: one at the end of a long line may take its time.
constexpr std::chrono::milliseconds time_for_an_answer{10000};

/// How long a program is waited for; between the two it is late, which beside other cells may be their doing.
constexpr std::chrono::milliseconds patience{15000};

/// Time since it was made.
class Watch {
public:
    /// @return "" within that time, else a complaint that begins with `late`
    std::string Complaint(char const* what, std::chrono::milliseconds within = at_once) const;

private:
    std::chrono::steady_clock::time_point start = std::chrono::steady_clock::now();
};

/// How a program is run.
struct Command {
    std::vector<std::string> arguments;        ///< the program first
    std::string before = {};                   ///< what sh does first in the process that becomes the program
    std::vector<std::string> environment = {}; ///< changes: NAME=value sets, NAME alone removes
    std::string folder = {};                   ///< working directory; "" for this one
};

/// How a program must end.
struct End {
    std::vector<int> status = {1};          ///< any of these; 128 + signal where one ends it
    int lines = 1;                          ///< on standard error, exactly
    std::string says = {};                  ///< in one of them
    std::optional<std::string> prints = {}; ///< on standard output: all of it
    std::chrono::milliseconds within = at_once;
};

/// Runs the command to its end.
/// @return "" if it ends like that; else what is wrong
std::string end_complaint(Command const& command, End const& end);

Cell ends(std::string name, Command command, End end = {});

/// How a show must play.
struct Play {
    int most_lines = 1;      ///< on standard error; the window library has one where vertical sync cannot be had
    std::string says = {};   ///< in one of them
    std::string prints = {}; ///< on standard output, among others
    int signal = 15;         ///< that ends it
    int status = 0;          ///< that it ends with
    std::chrono::milliseconds time{300}; ///< that it plays for
};

/// Runs the show on a screen of the worker's own until its window is there and its picture moves, and ends it.
/// @return "" if it plays like that; else what is wrong
std::string play_complaint(Command command, Play const& play);

Cell plays(std::string name, Command command, Play play = {});

/// Options for a show that takes little of the processor.
std::vector<std::string> small_show(std::vector<std::string> const& more = {"-mute"});

/// The screen of this worker, started when it is first asked for.
std::string own_display();

/// @return how many lines a text has; one without an end counts
int lines_of(std::string const& text);

/// @return the text in one line, shortened
std::string shown(std::string const& text);

} // namespace faults
