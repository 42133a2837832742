#include "kore/report.h"

#include <cassert>
#include <iostream>

namespace kore {

void report_error(char const* unit, int line, char const* function, std::string const& message) {
    std::cout << "E: " << unit << ":" << line << ", " << function << "() " << message << std::endl;
}

void assertion_failed(char const* expression, char const* unit, int line, char const* function) {
    // glibc's own reporter behind assert(): it knows the program's name and the platform's wording.
    __assert_fail(expression, unit, static_cast<unsigned int>(line), function);
}

} // namespace kore
