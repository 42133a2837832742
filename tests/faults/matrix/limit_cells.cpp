// SPDX-License-Identifier: MIT
// Too few files, too little memory or stack, too few threads: told before anything is opened.

#include "tests/faults/matrix/commands.h"

#include <unistd.h>

namespace faults {

namespace {

struct Limit {
    char option; ///< of sh's ulimit
    std::vector<int> too_low;
    std::vector<int> enough;
    char const* says;
};

std::vector<Limit> const limits = {
    {'n', {4, 5, 6, 7, 8, 10, 12, 14, 16, 20, 24, 28, 32}, {64, 128, 1024}, "see ulimit -n."},
    {'v', {200000, 400000, 600000, 800000, 1000000}, {1300000, 2000000}, "see ulimit -v."},
    {'d', {10000, 50000, 100000, 200000, 250000}, {400000, 1000000}, "see ulimit -d."},
    {'s', {64, 128, 256, 512, 1000}, {1024, 4096}, "see ulimit -s."},
    {'p', {2, 5, 10, 15}, {200}, "see ulimit -u."},
};

/// A user of their own counts the threads of nobody else; root's are not counted.
std::vector<std::string> as_new_user(std::vector<std::string> arguments, int number) {
    constexpr int first = 50000;
    std::string const user = std::to_string(first + number);
    arguments.insert(arguments.begin(), {"setpriv", "--reuid=" + user, "--clear-groups"});
    return arguments;
}

Command limited(Limit const& limit, int value, int number) {
    Command command{.arguments = small_show()};
    command.before = std::string("ulimit -") + limit.option + ' ' + std::to_string(value);
    if (limit.option == 'p' && geteuid() == 0) {
        // The limit counts once the user is another.
        command.arguments = as_new_user(command.arguments, number);
    }
    return command;
}

} // namespace

std::vector<Cell> limit_cells() {
    std::vector<Cell> cells;
    int number = 0;
    for (Limit const& limit : limits) {
        std::string const name = std::string("ulimit -") + limit.option + ' ';
        for (int const value : limit.too_low) {
            cells.push_back({name + std::to_string(value), [command = limited(limit, value, ++number), &limit] {
                                 Command on_display = command;
                                 on_display.environment = {"DISPLAY=" + own_display()};
                                 return end_complaint(on_display, {.says = limit.says});
                             }});
        }
        for (int const value : limit.enough) {
            cells.push_back(plays(name + std::to_string(value), limited(limit, value, ++number)));
        }
    }
    return cells;
}

} // namespace faults
