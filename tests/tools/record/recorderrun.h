// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/command.h"
#include "tests/support/temp.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <span>
#include <string>
#include <utility>
#include <vector>

/// Runs the recorder in an empty folder of its own.
class RecorderRun : public testing::Test {
protected:
    /// @param always_  arguments of every run
    explicit RecorderRun(std::string always_ = "") : always(std::move(always_)) {}

    /// @param before  of the shell, in front of the program
    support::Outcome Record(std::string const& arguments, std::vector<std::string> const& environment = {},
                            std::string const& before = "") const {
        return support::run_shell(before + "'" HARDSILENCE_BINARY_DIR "/hardsilence-record' " + always + arguments,
                                  {.folder = folder.Path(""), .environment = environment});
    }

    std::string In(std::string const& file) const { return folder.Path(file); }

    /// Arguments, and the error line that they get.
    using Refusal = std::pair<std::string, std::string>;

    /// Expects status 1 and the line each time, and nothing in the folder afterwards but "file".
    void ExpectRefusals(std::span<Refusal const> cases) const {
        for (auto const& [arguments, line] : cases) {
            SCOPED_TRACE(arguments);
            support::Outcome const outcome = Record(arguments);
            EXPECT_EQ(outcome.status, 1);
            EXPECT_EQ(outcome.error, "hardsilence-record: " + line + "\n");
            EXPECT_EQ(outcome.output, "");
        }
        for (auto const& entry : std::filesystem::directory_iterator(In(""))) {
            EXPECT_EQ(entry.path().filename(), "file") << "nothing is left behind";
        }
    }

    support::TempFolder const folder;

private:
    std::string const always;
};
