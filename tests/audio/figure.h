// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

/// Prints a measured figure, and writes it into the test's report.
inline void figure(std::string const& name, double value) {
    std::printf("[  figure  ] %s: %.2f\n", name.c_str(), value);
    testing::Test::RecordProperty(name, std::to_string(value));
}
