// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/CLI.hpp>
#include <charconv>
#include <functional>
#include <optional>
#include <string>

/// The last line of every help text; README.md has the table.
inline constexpr char const* exit_status_line =
    "Exit status: 0 done; 1 refused or failed, with one line that tells why; 128+n ended by signal n.";

/// Sets up what the tools have in common: --help and --version; of an option given twice the later one counts. Call it
/// before adding options and behind the footer, to which it adds the exit_status_line.
void set_up(CLI::App& app);

/// Adds an option with a value, which is passed to its reader unchanged, even if it is "".
/// @param type    name of the value in the help text, for example "WxH"
/// @param read    returns false if the value is not valid
/// @param wanted  what a valid value is, for the error line: "--size: 'x' is not <wanted>", a long value shortened
CLI::Option* add_value(CLI::App& app, std::string const& name, std::string const& type,
                       std::function<bool(std::string const&)> read, std::string const& wanted,
                       std::string const& help);

/// Reads the command line. Help and version go to standard output, one line about an error to standard error.
/// @return the exit status, if the program ends here: 0 after help or version, 1 after an error
std::optional<int> read_arguments(CLI::App& app, int argc, char const* const* argv);

/// Reads a decimal number and nothing else, whatever the locale.
/// @return false, with the number unchanged, for anything else and for numbers outside least to most
template<typename Number>
bool read_number(std::string const& text, Number least, Number most, Number& number) {
    Number found{};
    char const* const end = text.data() + text.size();
    auto const [rest, error] = std::from_chars(text.data(), end, found);
    bool const good = error == std::errc() && rest == end && found >= least && found <= most;
    if (good) number = found;
    return good;
}
