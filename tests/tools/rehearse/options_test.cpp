// SPDX-License-Identifier: MIT
#include "tools/rehearse/options.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

namespace {

struct Read {
    RehearseOptions options;
    std::optional<int> status;
    std::string error;
};

Read read_options(std::vector<char const*> const& arguments) {
    constexpr std::size_t most = 20;
    char const* argv[most] = {rehearse_name};
    std::copy(arguments.begin(), arguments.end(), argv + 1);
    Read read;
    testing::internal::CaptureStderr();
    read.status = read_command_line(static_cast<int>(arguments.size()) + 1, argv, read.options);
    read.error = testing::internal::GetCapturedStderr();
    return read;
}

} // namespace

TEST(RehearseOptions, AreAllRead) {
    auto const [options, status, error] =
        read_options({"--at", "12.4", "--play", "--size", "640x480", "--samples", "0", "--calm", "--no-wire", "--mute",
                      "--no-panel", "--pictures", "shots", "--content", "build-dev", "--tell"});
    EXPECT_FALSE(status.has_value());
    EXPECT_EQ(options.at, 12400);
    EXPECT_EQ(options.width, 640u);
    EXPECT_EQ(options.height, 480u);
    EXPECT_EQ(options.samples, 0u);
    EXPECT_EQ(options.pictures, "shots");
    EXPECT_EQ(options.content, "build-dev");
    EXPECT_TRUE(options.play && options.calm && options.mute && options.tell);
    EXPECT_FALSE(options.wire || options.panel);
}

TEST(RehearseOptions, HaveDefaults) {
    auto const [options, status, error] = read_options({});
    EXPECT_FALSE(status.has_value());
    EXPECT_EQ(options.at, 0);
    EXPECT_TRUE(options.wire && options.panel);
    EXPECT_FALSE(options.play || options.calm || options.mute || options.tell);
    EXPECT_EQ(options.content, "");
}

TEST(RehearseOptions, FaultsGetOneLineAndStatusOne) {
    std::pair<std::vector<char const*>, std::string> const cases[] = {
        {{"--at", "x"}, "--at: 'x' is not a number of beats such as 12.4"},
        {{"--size", "640"}, "--size: '640' is not a size such as 1280x720, up to 16384x16384"},
        {{"--samples", "99"}, "--samples: '99' is not a number from 0 to 64"},
        {{"--pictures", ""}, "--pictures: '' is not a path"},
        {{"--fast"}, "The following argument was not expected: --fast"},
    };
    for (auto const& [arguments, line] : cases) {
        Read const read = read_options(arguments);
        EXPECT_EQ(read.status, 1);
        EXPECT_EQ(read.error, "hardsilence-rehearse: " + line + "\n");
    }
}
