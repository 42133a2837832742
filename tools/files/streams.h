// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <string_view>

/// Runs a tool: prepares the streams, does the work, tells of what it throws, and sees all of its output written. A
/// crash, a library's too, is a line before the signal ends the process.
/// @param name  the tool's, in front of its error lines
/// @param work  returns the exit status
/// @return the exit status: 1 also if the work throws or standard output could not be written
int run_tool(char const* name, std::function<int()> const& work);

/// Prints "<name>: <message>" on standard error in one line, see printable.
/// @return 1, the exit status after an error
int complain(char const* name, std::string const& message);

/// The text with what would steer a terminal or break the line written out, an escape as "\x1b": control characters
/// (U+0000 to U+001F, U+007F to U+009F), and bytes that are no UTF-8.
std::string printable(std::string_view text);

/// Makes writing safe for a program; call it first. A standard stream that is closed becomes /dev/null, or the first
/// file to be opened would take its place; a file beyond the limit on file sizes is an error and no signal.
void prepare_streams();

/// Ends a program's output: sees it out of the buffer.
/// @param name    the program's, for the error line "<name>: cannot write to standard output: <reason>"
/// @param status  the exit status so far
/// @return the exit status: 1 if not all of standard output could be written, after the error line unless the status
///         was one of failure already; else the status
int finish_output(char const* name, int status);
