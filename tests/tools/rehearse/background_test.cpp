// SPDX-License-Identifier: MIT
#include "tools/rehearse/background.h"

#include "tests/support/temp.h"
#include "tools/rehearse/content.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <thread>

namespace fs = std::filesystem;

namespace {

bool wait_for(std::function<bool()> const& condition) {
    for (int i = 0; i < 1000; ++i) {
        if (condition()) return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return false;
}

} // namespace

TEST(Background, TellsTheLastWholeLineAndTheEnd) {
    Background program;
    ASSERT_TRUE(program.Start({"sh", "-c", "echo first; echo second >&2; printf third; read line; exit 3"}));
    EXPECT_TRUE(program.Running());
    EXPECT_TRUE(wait_for([&] { return program.Poll(); }));
    EXPECT_EQ(program.LastLine(), "second");
    EXPECT_FALSE(program.Running());
    EXPECT_FALSE(program.Succeeded());
    ASSERT_TRUE(program.Start({"true"}));
    EXPECT_TRUE(wait_for([&] { return program.Poll(); }));
    EXPECT_TRUE(program.Succeeded());
    EXPECT_FALSE(program.Start({"no such program"}));
    EXPECT_FALSE(program.Running());
}

TEST(Background, EndsWithItsOwner) {
    auto const start = std::chrono::steady_clock::now();
    {
        Background program;
        ASSERT_TRUE(program.Start({"sh", "-c", "sleep 60; true"}));
    }
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
}

TEST(Content, BuildsTheTargetOfTheSourcesThatChange) {
    support::TempFolder const folder;
    fs::path const before = fs::current_path();
    fs::current_path(folder.Path(""));
    fs::create_directories("content/models/lib");
    fs::create_directories("content/soundtrack/orchestra");
    fs::create_directories("content/soundtrack/score");
    folder.Write("build.txt", "");
    folder.Write("CMakeLists.txt", "cmake_minimum_required(VERSION 3.25)\nproject(content LANGUAGES NONE)\n"
                                   "add_custom_target(models COMMAND touch ${CMAKE_SOURCE_DIR}/models-made)\n"
                                   "add_custom_target(soundtrack COMMAND echo out of tune COMMAND false)\n");
    ASSERT_EQ(std::system("cmake -S . -B build >/dev/null"), 0);
    Content content("build");
    for (int i = 0; i < 20; ++i) content.Poll();
    EXPECT_EQ(content.Progress(), "");
    folder.Write("content/models/lib/a.scad", "cube();");
    EXPECT_TRUE(wait_for([&] {
        content.Poll();
        return fs::exists("models-made") && content.Progress().empty();
    }));
    folder.Write("content/soundtrack/score/theme.orc", "i1 0 1");
    EXPECT_TRUE(wait_for([&] {
        content.Poll();
        return content.Progress().starts_with("soundtrack: ");
    }));
    fs::current_path(before);
}
