// SPDX-License-Identifier: MIT
#include "tests/tools/farm/farmland.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <regex>
#include <thread>

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using support::Outcome;

namespace {

constexpr char const* real = HARDSILENCE_BINARY_DIR "/hardsilence-record";

constexpr char const* recorder = R"sh(#!/bin/sh
here="$(dirname "$0")"
real="$real"
echo "$*" >>"$here/calls"
part=
case "$*" in *--md5*--frames*) part="$(echo "$*" | sed -n 's/.*--film \([^ ]*\).*/\1/p')" ;; esac
once() { mkdir "$here/once-$1" 2>/dev/null; }
[ ! -f "$here/fault" ] || . "$here/fault"
exec "$real" "$@"
)sh";

} // namespace

FarmTest::FarmTest() {
    std::string script = recorder;
    script.replace(script.find("$real"), 5, real);
    fs::permissions(folder.Write("recorder", script), fs::perms::owner_all);
}

std::string FarmTest::Command(std::string const& arguments) const {
    return "'" HARDSILENCE_SOURCE_DIR "/tools/farm' --recorder '" + In("recorder") + "' " + look + arguments;
}

Outcome FarmTest::Farm(std::string const& arguments, std::vector<std::string> const& environment,
                       std::string const& before) const {
    return support::run_shell(before + Command(arguments),
                              {.folder = In(""), .environment = environment, .limit = 300s});
}

std::unique_ptr<Process> FarmTest::Start(std::string const& arguments) const {
    return std::make_unique<Process>(std::vector<std::string>{"sh", "-c", "exec " + Command(arguments)},
                                     std::vector<std::string>{}, In(""));
}

bool FarmTest::Comes(std::string const& name) const {
    for (auto const end = std::chrono::steady_clock::now() + 60s; std::chrono::steady_clock::now() < end;) {
        if (fs::exists(In(name))) return true;
        std::this_thread::sleep_for(20ms);
    }
    return false;
}

void FarmTest::Record(std::string const& file, std::string const& frames) const {
    Outcome const outcome = Shell(std::string("'") + real + "' " + look + "--frames " + frames + " --film " + file);
    ASSERT_EQ(outcome.status, 0) << outcome.error;
}

std::string FarmTest::Pictures(std::string const& file) const {
    return Shell("ffmpeg -v error -i " + file + " -map 0:v -pix_fmt rgb24 -f framemd5 -").output;
}

std::string FarmTest::Sound(std::string const& file) const {
    return Shell("ffmpeg -v error -i " + file + " -map 0:a -f md5 -").output;
}

void FarmTest::ExpectSame(std::string const& file, std::string const& other) const {
    std::string const pictures = Pictures(file);
    EXPECT_NE(pictures, "");
    EXPECT_TRUE(pictures == Pictures(other)) << pictures;
    EXPECT_NE(Sound(file), "");
    EXPECT_EQ(Sound(file), Sound(other));
}

Outcome FarmTest::Shell(std::string const& line) const {
    return support::run_shell(line, {.folder = In(""), .limit = 300s});
}

std::vector<int> FarmTest::Drawn() {
    std::vector<int> chunks;
    std::string const calls = support::read_all(In("calls"));
    fs::remove(In("calls"));
    std::regex const chunk("--film [^\n]*--md5 --frames ([0-9]+):");
    for (std::sregex_iterator call(calls.begin(), calls.end(), chunk), end; call != end; ++call) {
        chunks.push_back(std::stoi((*call)[1]));
    }
    std::sort(chunks.begin(), chunks.end());
    return chunks;
}

std::string FarmTest::Without(std::string const& program) const {
    fs::create_directories(In("bin"));
    for (char const* const place : {"/usr/bin", "/bin"}) {
        for (fs::directory_entry const& entry : fs::directory_iterator(place)) {
            std::error_code there_already;
            fs::create_symlink(entry.path(), fs::path(In("bin")) / entry.path().filename(), there_already);
        }
    }
    fs::remove(In("bin/" + program));
    return In("bin");
}
