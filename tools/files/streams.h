#pragma once

/// Makes writing safe for a program; call it first. A standard stream that is closed becomes /dev/null, or the first
/// file to be opened would take its place; a file beyond the limit on file sizes is an error and no signal.
void prepare_streams();

/// Ends a program's output: sees it out of the buffer.
/// @param name    the program's, for the error line "<name>: cannot write to standard output: <reason>"
/// @param status  the exit status so far
/// @return the exit status: 1 if not all of standard output could be written, after the error line unless the status
///         was one of failure already; else the status
int finish_output(char const* name, int status);
