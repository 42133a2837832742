// SPDX-License-Identifier: MIT
#include "tools/files/streams.h"

#include "runtime/streams.h"
#include "tests/support/command.h"
#include "tests/support/temp.h"

#include <csignal>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <iostream>
#include <sys/resource.h>
#include <unistd.h>

using support::Outcome;

namespace {

/// Ends a program that has written a line, as it would outside of the test.
/// @param target  where its standard output goes
Outcome end_into(char const* target, int status) {
    return support::run_in_child([=] {
        dup2(open(target, O_WRONLY), STDOUT_FILENO);
        std::cout << "a line\n";
        return finish_output("tool", status);
    });
}

} // namespace

TEST(Streams, AFullDeviceIsAFailure) {
    Outcome const end = end_into("/dev/full", 0);
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error, "tool: cannot write to standard output: No space left on device\n");
}

TEST(Streams, AFailureKeepsItsStatusAndItsOneLine) {
    Outcome const end = end_into("/dev/full", 1);
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error, "");
    EXPECT_EQ(end_into("/dev/null", 1).status, 1);
}

TEST(Streams, WhatIsWrittenInTimeCounts) {
    Outcome const end = end_into("/dev/null", 0);
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.error, "");
    Outcome const flushed = support::run_in_child([] {
        dup2(open("/dev/full", O_WRONLY), STDOUT_FILENO);
        std::cout << "a line" << std::endl;
        return finish_output("tool", 0);
    });
    EXPECT_EQ(flushed.status, 1) << "also where it failed earlier";
}

TEST(Streams, ClosedOnesAreNotTakenByTheNextFile) {
    for (int const stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        Outcome const end = support::run_in_child([=] {
            for (int i = stream; i <= STDERR_FILENO; ++i) close(i);
            prepare_streams();
            int const next = open("/dev/zero", O_RDONLY);
            std::cout << "a line" << std::endl;
            std::cerr << "a line" << std::endl;
            return next <= STDERR_FILENO ? 3 : finish_output("tool", 0);
        });
        EXPECT_EQ(end.status, 0) << stream;
    }
}

TEST(Streams, TextIsWrittenOutWhereItWouldSteerATerminal) {
    std::pair<std::string, std::string> const cases[] = {
        {"", ""},
        {"plain ~!", "plain ~!"},
        {"\x1b[31mred\n", "\\x1b[31mred\\x0a"},
        {std::string("\0\x7f", 2), "\\x00\\x7f"},
        {"gr\u00fc\u00df \u20ac \U0001f3b5", "gr\u00fc\u00df \u20ac \U0001f3b5"},
        {"\u009b31m", "\\xc2\\x9b31m"},
        {"\x9b"
         "31m",
         "\\x9b31m"},
        {"cut \xe2\x82", "cut \\xe2\\x82"},
        {"\xc0\x9b \xe0\x82\x9b \xed\xa0\x80 \xf4\x90\x80\x80 \xff",
         "\\xc0\\x9b \\xe0\\x82\\x9b \\xed\\xa0\\x80 \\xf4\\x90\\x80\\x80 \\xff"},
    };
    for (auto const& [text, out] : cases) EXPECT_EQ(printable(text), out);
}

TEST(Streams, WhatAToolThrowsIsOneLine) {
    auto const end = [](std::function<int()> const& work) {
        return support::run_in_child([&] { return run_tool("tool", work); });
    };
    Outcome const memory = end([]() -> int { throw std::bad_alloc(); });
    EXPECT_EQ(memory.status, 1);
    EXPECT_EQ(memory.error, "tool: out of memory\n");
    Outcome const other = end([]() -> int { throw std::runtime_error("two\nlines"); });
    EXPECT_EQ(other.status, 1);
    EXPECT_EQ(other.error, "tool: two\\x0alines\n");
    EXPECT_EQ(end([] { return 0; }).status, 0);
    EXPECT_EQ(end([] { return 7; }).status, 7);
}

#ifndef __SANITIZE_ADDRESS__
TEST(Streams, ACrashIsOneLineAndItsSignal) {
    for (int const signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL}) {
        Outcome const end = support::run_in_child([=] {
            return run_tool("tool", [=] {
                QuietStandardError const quiet;
                std::cerr << "noise" << std::endl;
                return std::raise(signal);
            });
        });
        EXPECT_EQ(end.signal, signal);
        EXPECT_EQ(end.error,
                  "tool: ended by signal " + std::to_string(signal) + ", a fault of its own or of a library\n");
    }
    Outcome const real = support::run_in_child([] {
        return run_tool("tool", [] {
            char const* volatile const nowhere = nullptr;
            return static_cast<int>(std::strlen(nowhere));
        });
    });
    EXPECT_EQ(real.signal, SIGSEGV);
    EXPECT_EQ(real.error, "tool: ended by signal 11, a fault of its own or of a library\n");
}
#endif

TEST(Streams, TheLimitOnFileSizesIsAnError) {
    support::TempFolder const folder;
    Outcome const end = support::run_in_child([&] {
        prepare_streams();
        rlimit const none{0, 0};
        setrlimit(RLIMIT_FSIZE, &none);
        int const file = open(folder.Path("a").c_str(), O_WRONLY | O_CREAT, 0666);
        return write(file, "x", 1) < 0 && errno == EFBIG ? 0 : 1;
    });
    EXPECT_EQ(end.signal, 0);
    EXPECT_EQ(end.status, 0);
}
