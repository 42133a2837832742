// SPDX-License-Identifier: MIT
#pragma once

#include "tools/record/options.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <optional>
#include <span>
#include <string>
#include <utility>
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

/// A command line, and the error line that it gets.
using Refusal = std::pair<std::vector<char const*>, std::string>;

/// Expects each to be refused with status 1, its line and nothing else.
inline void expect_refusals(std::span<Refusal const> cases) {
    for (auto const& [arguments, line] : cases) {
        SCOPED_TRACE(testing::PrintToString(arguments));
        Outcome const outcome = read(arguments);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.error, "hardsilence-record: " + line + "\n");
        EXPECT_EQ(outcome.out, "");
    }
}
