// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// The matrix of faults: what can go wrong around the programs, and how each of them must end then. A group is a list
/// of cells, made as a product wherever each product says something.
namespace faults {

/// One fault, tried on one program.
struct Cell {
    std::string name;                  ///< unique within its group
    std::function<std::string()> fail; ///< tries it; "" if all is right, else a line that says what is not
};

/// How a complaint about time alone begins.
inline constexpr std::string_view late = "late: ";

struct Group {
    char const* name;
    char const* what; ///< in a few words
    std::vector<Cell> (*make)();
    bool alone = false; ///< its cells run one after another: they share something
};

/// All groups, in the order of their report.
std::vector<Group> all_groups();

/// Tries the cells, some at a time where they may, each in a process that they do not share with others. Those that are
/// late and nothing else are tried again one by one, a few times.
/// @param workers  how many at a time
/// @return "" for each cell that is right, else its complaint
std::vector<std::string> try_cells(std::vector<Cell> const& cells, int workers);

// The groups, each in a unit of its own.
std::vector<Cell> commandline_cells();
std::vector<Cell> signal_cells();
std::vector<Cell> videomode_cells();
std::vector<Cell> screen_cells();
std::vector<Cell> server_cells();
std::vector<Cell> sound_cells();
std::vector<Cell> soundtrack_cells();
std::vector<Cell> stream_cells();
std::vector<Cell> limit_cells();
std::vector<Cell> data_cells();
std::vector<Cell> writing_cells();
std::vector<Cell> output_cells();
std::vector<Cell> tool_cells();
std::vector<Cell> model_cells();

} // namespace faults
