#pragma once

#include "tools/record/options.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

/// What the recorder makes of a command line.
struct Outcome {
    RecordOptions options;
    std::optional<int> status;
    std::string out;
    std::string error;
};

inline Outcome read(std::vector<char const*> const& arguments) {
    constexpr std::size_t most = 20;
    char const* argv[most] = {"hardsilence-record"};
    std::copy(arguments.begin(), arguments.end(), argv + 1);
    Outcome outcome;
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    outcome.status = read_command_line(static_cast<int>(arguments.size()) + 1, argv, outcome.options);
    outcome.out = testing::internal::GetCapturedStdout();
    outcome.error = testing::internal::GetCapturedStderr();
    return outcome;
}
