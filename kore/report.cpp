// SPDX-License-Identifier: MIT
#include "kore/report.h"

#include <cassert>
#include <iostream>

namespace kore {

void report_error(Place const& place, std::string const& message) {
    std::cout << "E: " << place.unit << ":" << place.line << ", " << place.function << "() " << message << std::endl;
}

void assertion_failed(char const* expression, Place const& place) {
    // glibc's own reporter behind assert(): it knows the program's name and the platform's wording.
    __assert_fail(expression, place.unit, static_cast<unsigned int>(place.line), place.function);
}

} // namespace kore
