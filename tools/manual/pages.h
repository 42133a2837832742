// SPDX-License-Identifier: MIT
#pragma once

#include "tools/manual/help.h"

#include <string>
#include <vector>

/// The texts that are made of a program's help.

/// The options as lists of mdoc, the markup of manual pages: mandoc's mdoc(7).
std::string manual_options(std::vector<HelpSection> const& help);

/// Completion scripts for the shells.
/// @param program  its name
std::string bash_completion(std::string const& program, std::vector<HelpSection> const& help);
std::string zsh_completion(std::string const& program, std::vector<HelpSection> const& help);
std::string fish_completion(std::string const& program, std::vector<HelpSection> const& help);
