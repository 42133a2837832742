// SPDX-License-Identifier: MIT
// Tries every fault of the matrix, or those of some groups, and tells cells tried and failed by group.
//
//     faults_matrix [--list] [GROUP...]
//
// With HARDSILENCE_LONG=1 each is tried ten times, for nothing may depend on luck.

#include "tests/faults/matrix/matrix.h"
#include "tests/support/effort.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <set>
#include <unistd.h>

namespace {

constexpr int workers = 4; // most cells wait
constexpr int many_rounds = 10;

/// The programs shall find what they find from a terminal, whoever started this: signals that are not ignored, as nohup
/// has them, no settings but the cell's own, and no open files but the standard streams.
void forget_surroundings() {
    close_range(STDERR_FILENO + 1, ~0U, 0);
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    for (int const signal : {SIGHUP, SIGINT, SIGQUIT, SIGPIPE, SIGTERM, SIGCHLD}) std::signal(signal, SIG_DFL);
    for (char const* const name :
         {"DISPLAY", "WAYLAND_DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "ALSOFT_DRIVERS", "ALSOFT_LOGLEVEL", "PULSE_SERVER",
          "HARDSILENCE_CALM", "HARDSILENCE_CHECK", "HARDSILENCE_DESKTOP", "HARDSILENCE_MONITOR", "HARDSILENCE_OFFSET",
          "HARDSILENCE_PACE", "HARDSILENCE_SOUND", "HARDSILENCE_STRETCH", "HARDSILENCE_WIRE"}) {
        unsetenv(name);
    }
}

struct Tally {
    std::size_t tried = 0;
    std::size_t failed = 0;
};

Tally try_group(faults::Group const& group) {
    auto const start = std::chrono::steady_clock::now();
    std::vector<faults::Cell> const cells = group.make();
    std::vector<std::string> const complaints = faults::try_cells(cells, group.alone ? 1 : workers);
    Tally tally{cells.size(), 0};
    std::set<std::string> names;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        std::string const twin = names.insert(cells[i].name).second ? "" : "another cell has this name";
        std::string const& complaint = complaints[i].empty() ? twin : complaints[i];
        if (complaint.empty()) continue;
        ++tally.failed;
        std::cout << group.name << ": " << cells[i].name << ": " << complaint << '\n';
    }
    double const seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    std::printf("%-12s %5zu tried %4zu failed %5.0f s  %s\n", group.name, tally.tried, tally.failed, seconds,
                group.what);
    std::fflush(stdout);
    return tally;
}

} // namespace

int main(int argc, char** argv) {
    forget_surroundings();
    auto const groups = faults::all_groups();
    bool const list = argc == 2 && std::strcmp(argv[1], "--list") == 0;
    int const rounds = support::long_run() ? many_rounds : 1;
    Tally sum;
    int known = 0;
    for (faults::Group const& group : groups) {
        if (list) std::cout << group.name << "  " << group.what << '\n';
        bool const asked =
            std::any_of(argv + 1, argv + argc, [&](char const* name) { return name == std::string(group.name); });
        if (list || (argc > 1 && !asked)) continue;
        ++known;
        for (int round = 0; round < rounds; ++round) {
            Tally const tally = try_group(group);
            sum.tried += tally.tried;
            sum.failed += tally.failed;
        }
    }
    if (list) return 0;
    if (argc > 1 && known != argc - 1) {
        std::cerr << "usage: faults_matrix [--list] [GROUP...]\n";
        return 2;
    }
    std::printf("%-12s %5zu tried %4zu failed\n", "all", sum.tried, sum.failed);
    return sum.failed == 0 && sum.tried > 0 ? 0 : 1;
}
