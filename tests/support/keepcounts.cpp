// In a build for coverage: what has been counted up to a broken assertion is written before the program aborts, so that
// death tests count.

#include <csignal>

extern "C" void __gcov_dump(); // NOLINT(bugprone-reserved-identifier): libgcov's

namespace {

void keep_counts(int) { __gcov_dump(); } // abort goes on when this returns

[[maybe_unused]] auto const before = std::signal(SIGABRT, keep_counts);

} // namespace
