// SPDX-License-Identifier: MIT
// Signals that ask the show to end, in each of its kinds; and those that do not.

#include "tests/faults/matrix/commands.h"

#include <csignal>

namespace faults {

namespace {

struct Signal {
    char const* name;
    int number;
    int status; ///< that the show ends with
};

constexpr Signal signals[] = {
    {"HUP", SIGHUP, 0},     {"INT", SIGINT, 0},     {"QUIT", SIGQUIT, 0},   {"TERM", SIGTERM, 0},
    {"KILL", SIGKILL, 137}, {"ABRT", SIGABRT, 134}, {"SEGV", SIGSEGV, 139}, {"USR1", SIGUSR1, 138},
};

std::vector<Kind> const kinds = {
    {"exact", {"-mute"}, {}},
    {"friendly", {"-mute"}, {"HARDSILENCE_DESKTOP=1", "HARDSILENCE_PACE=1"}},
    {"with sound", {}, {"ALSOFT_DRIVERS=null"}},
    {"by the sound", {}, {"ALSOFT_DRIVERS=null", "HARDSILENCE_SOUND=1"}},
    {"debugged", {"-mute", "-magic", "-fps"}, {}},
};

} // namespace

std::vector<Cell> signal_cells() {
    std::vector<Cell> cells;
    for (Kind const& kind : kinds) {
        for (Signal const& signal : signals) {
            cells.push_back(plays(std::string(signal.name) + ", " + kind.name,
                                  {.arguments = small_show(kind.options), .environment = kind.environment},
                                  {.most_lines = 2, .signal = signal.number, .status = signal.status}));
        }
        // As nohup and a shell's pipe have it.
        for (std::string const ignored : {"HUP", "PIPE"}) {
            cells.push_back(plays("TERM with " + ignored + " ignored, " + kind.name,
                                  {.arguments = small_show(kind.options),
                                   .before = "trap '' " + ignored,
                                   .environment = kind.environment},
                                  {.most_lines = 2}));
        }
    }
    return cells;
}

} // namespace faults
