// SPDX-License-Identifier: MIT
#include "tests/support/command.h"
#include "tests/support/temp.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <iostream>

using support::Outcome;
using support::run;
using support::run_in_child;
using support::run_shell;

TEST(Command, KeepsBothStreamsApartAndTheExitStatus) {
    Outcome const outcome = run_shell("echo said; echo complained >&2; exit 7");
    EXPECT_EQ(outcome.status, 7);
    EXPECT_EQ(outcome.signal, 0);
    EXPECT_EQ(outcome.output, "said\n");
    EXPECT_EQ(outcome.error, "complained\n");
}

TEST(Command, PassesArgumentsAsTheyAre) {
    EXPECT_EQ(run({"printf", "%s|", "two words", "'$HOME'", ""}).output, "two words|'$HOME'||");
}

TEST(Command, SetsAndRemovesEnvironmentInTheChildOnly) {
    ::setenv("COMMAND_TEST_OLD", "old", 1);
    Outcome const outcome = run_shell("echo ${COMMAND_TEST_NEW-unset} ${COMMAND_TEST_OLD-unset}",
                                      {.environment = {"COMMAND_TEST_NEW=a=b", "COMMAND_TEST_OLD"}});
    EXPECT_EQ(outcome.output, "a=b unset\n");
    EXPECT_EQ(std::getenv("COMMAND_TEST_NEW"), nullptr);
    EXPECT_STREQ(std::getenv("COMMAND_TEST_OLD"), "old");
    ::unsetenv("COMMAND_TEST_OLD");
}

TEST(Command, RunsInTheFolderGiven) {
    support::TempFolder const folder;
    folder.Write("here", "");
    EXPECT_EQ(run({"ls"}, {.folder = folder.Path("")}).output, "here\n");
    EXPECT_EQ(run({"ls"}, {.folder = folder.Path("none")}).status, 126);
}

TEST(Command, ReportsAProgramThatCannotBeStarted) { EXPECT_EQ(run({"./no-such-program"}).status, 127); }

TEST(Command, ReportsTheSignalThatEndsAChild) {
    Outcome const outcome = run_in_child([]() -> int { std::abort(); });
    EXPECT_EQ(outcome.status, -1);
    EXPECT_EQ(outcome.signal, SIGABRT);
}

TEST(Command, ReturnsWhatAFunctionReturnsAndWrites) {
    std::printf("not the child's"); // buffered where standard output is no terminal
    Outcome const outcome = run_in_child([] {
        std::cout << "no line end";
        return 3;
    });
    EXPECT_EQ(outcome.status, 3);
    EXPECT_EQ(outcome.output, "no line end");
}

TEST(Command, KillsAChildAndItsOwnChildrenAtTheTimeLimit) {
    support::TempFolder const folder;
    Outcome const outcome = run_shell("echo begun; (sleep 1; touch late) & sleep 20",
                                      {.folder = folder.Path(""), .limit = std::chrono::milliseconds(300)});
    EXPECT_EQ(outcome.status, -1);
    EXPECT_EQ(outcome.signal, SIGKILL);
    EXPECT_EQ(outcome.output, "begun\n");
    run({"sleep", "1.5"});
    EXPECT_FALSE(std::filesystem::exists(folder.Path("late")));
}
