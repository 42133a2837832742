// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace kore {

/// Where a message says that it comes from.
struct Place {
    char const* unit; ///< relative to the source root
    int line;
    char const* function;
};

/// Prints "E: <unit>:<line>, <function>() <message>" and an end of line on standard output.
void report_error(Place const& place, std::string const& message);

/// Prints the platform's assertion line ("program: unit:line: function: Assertion `expression' failed.") on standard
/// error and aborts.
[[noreturn]] void assertion_failed(char const* expression, Place const& place);

} // namespace kore

/// An error line that names the place it stands at.
#define KORE_ERROR(message) ::kore::report_error({__FILE__, __LINE__, __func__}, (message))

/// An assertion in every build type. Its report shows the given place (kore/reportedplaces.h), and the expression as
/// written.
#define KORE_ASSERT_AT(expression, place)                                                                              \
    ((expression) ? static_cast<void>(0) : ::kore::assertion_failed(#expression, (place)))
