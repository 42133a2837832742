// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

/// What a program's --help says, taken apart. It is the one source of the options in manuals and completions.

/// An option, or a positional argument.
struct HelpEntry {
    std::vector<std::string> names; ///< with their dashes: "-h", "--help"; empty for a positional argument
    std::string value;              ///< what it takes, for example "FILE" or "FILE ..."; "" for nothing
    std::string text;
};

struct HelpSection {
    std::string command; ///< the subcommand that it belongs to, "" for none
    std::string text;    ///< what the subcommand does
    std::vector<HelpEntry> entries;
};

/// Reads help whose entries are indented and part their names from their text by two spaces or by "(required)"; a line
/// that is indented further goes on with the text. A word alone at the start of a line begins a subcommand, and the
/// indented line after it tells what it does. All other lines are passed over.
/// @return the sections that have entries or belong to a subcommand
std::vector<HelpSection> parse_help(std::string_view help);
