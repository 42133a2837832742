// SPDX-License-Identifier: MIT
// For coverage builds: writes the counts before a failed assertion aborts the program, so that death tests count.

#include <csignal>

extern "C" void __gcov_dump(); // NOLINT(bugprone-reserved-identifier): libgcov's

namespace {

void keep_counts(int) { __gcov_dump(); } // abort continues when this returns

[[maybe_unused]] auto const before = std::signal(SIGABRT, keep_counts);

} // namespace
