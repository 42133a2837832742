// SPDX-License-Identifier: MIT
#include "kore/readfile.h"
#include "kore/report.h"
#include "tests/support/temp.h"

#include <csignal>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>

namespace {

constexpr int complaint_line = __LINE__ + 1;
void complain() { KORE_ERROR("no boat"); }

TEST(Report, IsOneLineOnStandardOutput) {
    testing::internal::CaptureStdout();
    kore::report_error({"kore/boat.cpp", 12, "Launch"}, "no water");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "E: kore/boat.cpp:12, Launch() no water\n");
}

TEST(Report, NamesItsPlaceRelativeToTheSourceRoot) {
    testing::internal::CaptureStdout();
    complain();
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "E: tests/kore/report_test.cpp:" + std::to_string(complaint_line) + ", complain() no boat\n");
}

TEST(Report, OfAHoldingAssertionIsNothing) {
    int runs = 0;
    KORE_ASSERT_AT(++runs > 0, (kore::Place{"kore/boat.cpp", 1, "f()"}));
    EXPECT_EQ(runs, 1); // the asserted expression does its work once
}

TEST(ReportDeathTest, OfABrokenAssertionIsThePlatformsLine) {
    EXPECT_EXIT(KORE_ASSERT_AT(2 + 2 == 5, (kore::Place{"kore/boat.cpp", 77, "void f(int)"})),
                testing::KilledBySignal(SIGABRT),
                "kore_test: kore/boat\\.cpp:77: void f\\(int\\): Assertion `2 \\+ 2 == 5' failed\\.");
}

TEST(ReadFile, ReadsAllBytesAndLeavesTheTextAloneOnFailure) {
    support::TempFolder const temp;
    std::string const bytes("a\0b\r\n\xff", 6);
    kore::FileText text;
    EXPECT_EQ(text.View(), "");
    EXPECT_TRUE(kore::read_file(temp.Write("bytes", bytes), text));
    EXPECT_EQ(text.View(), bytes);
    for (std::string const& path : {temp.Path("missing"), temp.Path(""), std::string("/dev/null")}) {
        EXPECT_FALSE(kore::read_file(path, text)) << path;
        EXPECT_EQ(text.View(), bytes);
    }
    EXPECT_TRUE(kore::read_file(temp.Write("empty", ""), text));
    EXPECT_EQ(text.View(), "");
    EXPECT_TRUE(kore::read_file(temp.Path("bytes"), text, bytes.size()));
    EXPECT_FALSE(kore::read_file(temp.Path("bytes"), text, bytes.size() - 1));
}

#ifndef __SANITIZE_ADDRESS__ // which ends the program instead
TEST(ReadFile, RefusesWhatMemoryCannotHold) {
    support::TempFolder const temp;
    std::string const path = temp.Write("large", "");
    std::filesystem::resize_file(path, std::uintmax_t{1} << 36); // all of it a hole
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_AS, &before), 0);
    rlimit const little{rlim_t{1} << 32, before.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_AS, &little), 0);
    kore::FileText text;
    bool const read = kore::read_file(path, text);
    ASSERT_EQ(setrlimit(RLIMIT_AS, &before), 0);
    EXPECT_FALSE(read);
    EXPECT_EQ(text.View(), "");
}
#endif

TEST(ReadFile, TakesWhatThereIsOfAFileThatSaysItIsLonger) {
    std::string const path = "/sys/kernel/mm/transparent_hugepage/enabled";
    if (!std::filesystem::exists(path)) GTEST_SKIP() << "there is no " << path << " here";
    kore::FileText text;
    ASSERT_TRUE(kore::read_file(path, text));
    EXPECT_EQ(text.View(), support::read_all(path));
    EXPECT_LT(text.View().size(), std::filesystem::file_size(path));
}

} // namespace
