// SPDX-License-Identifier: MIT
// The tools' standard streams: closed, full, or read by nobody.

#include "tests/faults/matrix/toolbox.h"

namespace faults {

namespace {

struct Speaker {
    char const* name;
    std::vector<std::string> command;
    std::vector<int> status = {0};
    int lines = 0; ///< on standard error
};

std::vector<Speaker> speakers() {
    return {
        {"recorder --help", {recorder, "--help"}}, {"recorder --version", {recorder, "--version"}},
        {"recorder --list", {recorder, "--list"}}, {"stills", small_picture({"--beats", "1", "--out", "."})},
        {"asc --help", {asc, "--help"}},           {"asc convert --help", {asc, "convert", "--help"}},
        {"asc --version", {asc, "--version"}},     {"asc check", {asc, "check", "a.asc"}},
    };
}

std::vector<Speaker> silent() {
    return {
        {"convert", {asc, "convert", "square.obj", "-o", "c.asc"}},
        {"join", {asc, "join", "a.asc", "b.asc", "-o", "c.asc"}},
        {"sheet", {asc, "sheet", "a.asc", "-o", "c.png"}},
        {"a wrong option", {recorder, "--wrong"}, {1}, 1},
        {"a wrong command", {asc, "wrong"}, {1}, 1},
        {"no command", {asc, "check", "none.asc"}, {1}, 1},
        {"place", {place, "a.asc", "data"}},
    };
}

struct Streams {
    char const* name;
    char const* before; ///< in sh
    bool error;         ///< standard error is there
    bool output;        ///< standard output takes what is written
};

constexpr Streams streams[] = {
    {"no input", "exec <&-", true, true},
    {"no output", "exec >&-", true, true},
    {"no error", "exec 2>&-", false, true},
    {"no streams", "exec <&- >&- 2>&-", false, true},
    {"no input, no output", "exec <&- >&-", true, true},
    {"output full", "exec >/dev/full", true, false},
    {"output full, no input", "exec >/dev/full <&-", true, false},
    {"error full", "exec 2>/dev/full", false, true},
    {"all full", "exec >/dev/full 2>/dev/full", false, false},
    {"output for reading", "exec >&- 1</dev/null", true, false},
    {"input a folder", "exec </", true, true},
};

Cell cell(Speaker const& speaker, Streams const& with, bool speaks) {
    bool const fails = speaks && !with.output;
    int const lines = with.error ? speaker.lines + (fails ? 1 : 0) : 0;
    End const end{.status = fails ? std::vector<int>{1} : speaker.status,
                  .lines = lines,
                  .says = lines > 0 && fails ? "cannot write to standard output" : "",
                  .within = std::chrono::seconds(30)}; // some draw
    return {std::string(speaker.name) + ", " + with.name,
            [=] { return in_folder({}, {.arguments = speaker.command, .before = with.before}, end); }};
}

} // namespace

std::vector<Cell> output_cells() {
    std::vector<Cell> cells;
    for (Streams const& with : streams) {
        for (Speaker const& speaker : speakers()) cells.push_back(cell(speaker, with, true));
        for (Speaker const& speaker : silent()) cells.push_back(cell(speaker, with, false));
    }
    return cells;
}

} // namespace faults
