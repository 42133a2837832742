// SPDX-License-Identifier: MIT
// Options and settings that are wrong: told before anything is opened, whatever comes before and behind them.

#include "tests/faults/matrix/commands.h"

namespace faults {

namespace {

struct Wrong {
    std::vector<std::string> options;
    std::string output; ///< on standard output, as the program's interface has it
    std::string error;
};

std::vector<Wrong> const wrong_options = {
    {{"-foo"}, "Bad command line parameter '-foo'\n", ""},
    {{""}, "Bad command line parameter ''\n", ""},
    {{"--mute"}, "Bad command line parameter '--mute'\n", ""},
    {{"-W"}, "Bad command line parameter '-W'\n", ""},
    {{"-w=1"}, "Bad command line parameter '-w=1'\n", ""},
    {{"a\xff\n\x1b[2J"}, "Bad command line parameter 'a\xff\n\x1b[2J'\n", ""},
    {{std::string(100000, 'x')}, "Bad command line parameter '" + std::string(100000, 'x') + "'\n", ""},
};

std::vector<std::vector<std::string>> const good_options = {{},        {"-w"},     {"-novsync"}, {"-fps"},
                                                            {"-mute"}, {"-magic"}, {"-nofsaa"},  {"-limit", "30"}};

std::string joined(std::vector<std::string> const& words) {
    std::string text;
    for (std::string const& word : words) text += (text.empty() ? "" : " ") + shown(word).substr(0, 20);
    return text;
}

void add_wrong_options(std::vector<Cell>& cells) {
    for (Wrong const& wrong : wrong_options) {
        for (auto const& good : good_options) {
            std::vector<std::string> arguments = {show};
            arguments.insert(arguments.end(), good.begin(), good.end());
            arguments.insert(arguments.end(), wrong.options.begin(), wrong.options.end());
            cells.push_back(ends(joined(arguments), {.arguments = arguments, .environment = {"DISPLAY"}},
                                 {.status = {1}, .lines = 0, .prints = wrong.output}));
        }
    }
}

void add_missing_values(std::vector<Cell>& cells) {
    for (std::string const option : {"-limit", "-width"}) {
        for (auto const& good : good_options) {
            std::vector<std::string> arguments = {show};
            arguments.insert(arguments.end(), good.begin(), good.end());
            arguments.push_back(option);
            cells.push_back(ends(joined(arguments) + ", no value", {.arguments = arguments, .environment = {"DISPLAY"}},
                                 {.status = {1}, .lines = 0, .prints = option + " requires a value\n"}));
        }
    }
}

void add_widths(std::vector<Cell>& cells) {
    for (std::string const value : {"", "abc", "0", "-1", "1", "-2147483648", "40000", "2147483647", "1e9"}) {
        for (std::string const window : {"-w", "-mute"}) {
            cells.push_back(ends("-width " + shown(value) + ' ' + window,
                                 {.arguments = {show, window, "-width", value}, .environment = {"DISPLAY"}},
                                 {.status = {1}, .says = value == "1e9" ? "0 pixels" : " pixels."}));
        }
    }
}

void add_settings(std::vector<Cell>& cells) {
    for (std::string const variable : {"HARDSILENCE_MONITOR", "HARDSILENCE_OFFSET"}) {
        for (std::string const value :
             {"abc", "1.5", "1e1", " 1", "1 ", "+1", "99999", "-99999", "0x1", "99999999999999999999", "\xff", "--1"}) {
            std::string const setting = variable + '=' + value;
            cells.push_back(ends(shown(setting), {.arguments = {show, "-mute"}, .environment = {"DISPLAY", setting}},
                                 {.status = {1}, .says = variable}));
        }
    }
}

} // namespace

std::vector<Cell> commandline_cells() {
    std::vector<Cell> cells;
    add_wrong_options(cells);
    add_missing_values(cells);
    add_widths(cells);
    add_settings(cells);
    return cells;
}

} // namespace faults
