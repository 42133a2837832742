#pragma once

#include <string>

namespace kore {

/// Prints "E: <unit>:<line>, <function>() <message>" and an end of line on standard output.
void report_error(char const* unit, int line, char const* function, std::string const& message);

/// Prints the platform's assertion line ("program: unit:line: function: Assertion `expression' failed.") on standard
/// error and aborts. For invariants whose unit, line and function are fixed texts that must not drift with the source.
[[noreturn]] void assertion_failed(char const* expression, char const* unit, int line, char const* function);

} // namespace kore

/// An error line that names the place it stands at; the unit is relative to the source root.
#define KORE_ERROR(message) ::kore::report_error(__FILE__, __LINE__, __func__, (message))

/// An assertion in every build type. Its report shows the given texts, and the expression as written.
#define KORE_ASSERT_AT(expression, unit, line, function)                                                               \
    ((expression) ? static_cast<void>(0) : ::kore::assertion_failed(#expression, unit, line, function))
