// SPDX-License-Identifier: MIT
// Standard streams that are closed, full, or read by nobody.

#include "tests/faults/matrix/commands.h"

namespace faults {

namespace {

/// A pipe on a stream, open to read in the same process, which does not.
std::string pipe_on(std::string const& stream) {
    return "p=$(mktemp -u) && mkfifo $p && exec 9<>$p && exec " + stream + ">$p && rm $p";
}

struct Streams {
    std::string name;
    std::string before;
};

std::vector<Streams> closed_streams() {
    std::vector<Streams> all;
    for (unsigned int which = 1; which < 8; ++which) {
        Streams one{"closed", ":"};
        if (which & 1U) one = {one.name + " 0", one.before + "; exec <&-"};
        if (which & 2U) one = {one.name + " 1", one.before + "; exec >&-"};
        if (which & 4U) one = {one.name + " 2", one.before + "; exec 2>&-"};
        all.push_back(one);
    }
    return all;
}

/// A run that ends at once.
struct Run {
    char const* name;
    Words options;
    int status;
    int lines;
};

std::vector<Run> const runs = {
    {"help", {"-h"}, 0, 0},          {"wrong option", {"-foo"}, 1, 0},
    {"no value", {"-width"}, 1, 0},  {"wrong width", {"-width", "0"}, 1, 1},
    {"no display", {"-mute"}, 1, 1},
};

Words command(Words const& options) {
    Words arguments = {show};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return arguments;
}

void add_closed(std::vector<Cell>& cells) {
    for (Streams const& streams : closed_streams()) {
        bool const heard = streams.name.find('2') == std::string::npos;
        for (Run const& run : runs) {
            cells.push_back(
                ends(streams.name + ", " + run.name,
                     {.arguments = command(run.options), .before = streams.before, .environment = {"DISPLAY"}},
                     {.status = {run.status}, .lines = heard ? run.lines : 0}));
        }
        for (Words const& options : {Words{"-mute", "-fps"}, Words{}}) {
            cells.push_back(plays(
                streams.name + (options.empty() ? ", plays" : ", plays mute"),
                {.arguments = small_show(options), .before = streams.before, .environment = {"ALSOFT_DRIVERS=null"}}));
        }
    }
}

/// Streams that take nothing, or no more.
std::vector<Streams> deaf_streams() {
    std::vector<Streams> all;
    for (std::string const stream : {"1", "2"}) {
        all.push_back({stream + " full", "exec " + stream + ">/dev/full"});
        all.push_back({stream + " without a reader", pipe_on(stream) + " && exec 9<&-"});
        all.push_back({stream + " unread", pipe_on(stream)});
        all.push_back({stream + " unread and full", pipe_on(stream) + " && head -c 65536 /dev/zero >&" + stream});
    }
    return all;
}

void add_deaf(std::vector<Cell>& cells) {
    constexpr std::chrono::milliseconds some_lines{2500}; // of the frame rate
    for (Streams const& streams : deaf_streams()) {
        cells.push_back(plays(streams.name + ", plays",
                              {.arguments = small_show({"-mute", "-fps"}), .before = streams.before},
                              {.time = some_lines}));
        cells.push_back(plays(streams.name + ", plays friendly",
                              {.arguments = small_show({"-fps"}),
                               .before = streams.before,
                               .environment = {"HARDSILENCE_PACE=1", "HARDSILENCE_DESKTOP=1", "ALSOFT_DRIVERS=none"}},
                              {.most_lines = 2, .time = some_lines}));
        bool const help_is_lost = streams.name[0] == '1' && streams.name != "1 unread";
        for (Run const& run : runs) {
            bool const is_help = run.options == Words{"-h"};
            int const status = is_help && help_is_lost ? 1 : run.status;
            int const lines = streams.name[0] == '2' ? 0 : is_help && help_is_lost ? 1 : run.lines;
            cells.push_back(
                ends(streams.name + ", " + run.name,
                     {.arguments = command(run.options), .before = streams.before, .environment = {"DISPLAY"}},
                     {.status = {status}, .lines = lines}));
        }
    }
}

} // namespace

std::vector<Cell> stream_cells() {
    std::vector<Cell> cells;
    add_closed(cells);
    add_deaf(cells);
    return cells;
}

} // namespace faults
