// SPDX-License-Identifier: MIT
// The programs as they are installed, read by readelf: what a fault in memory comes up against.

#include "tests/support/command.h"
#include "tests/support/temp.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <vector>

namespace fs = std::filesystem;
using testing::ContainsRegex;
using testing::HasSubstr;
using testing::Not;

namespace {

bool is_program(fs::path const& path) {
    return support::read_all(path).substr(0, 4) == "\x7f"
                                                   "ELF";
}

std::string read_elf(fs::path const& path, std::string const& what) {
    auto const outcome = support::run({"readelf", "-W", what, path.string()});
    EXPECT_EQ(outcome.status, 0) << outcome.error;
    return outcome.output;
}

int count(std::string const& text, std::string const& part) {
    int found = 0;
    for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size())) ++found;
    return found;
}

/// All programs that are installed.
class Installed : public testing::Test {
protected:
    Installed() {
        auto const outcome = support::run({"cmake", "--install", HARDSILENCE_BINARY_DIR, "--prefix", folder.Path("")});
        EXPECT_EQ(outcome.status, 0) << outcome.error;
        for (auto const& entry : fs::recursive_directory_iterator(folder.Path(""))) {
            if (entry.is_regular_file() && is_program(entry.path())) programs.push_back(entry.path());
        }
    }
    support::TempFolder const folder;
    std::vector<fs::path> programs;
};

TEST_F(Installed, ProgramsAreTheShowAndTheRecorderAtLeast) {
    std::vector<std::string> names;
    for (fs::path const& program : programs) names.push_back(program.filename().string());
    EXPECT_THAT(names, testing::IsSupersetOf({"hardsilence", "hardsilence-record"}));
}

TEST_F(Installed, ProgramsLieAnywhereInMemoryAndCannotBeRewritten) {
    for (fs::path const& program : programs) {
        SCOPED_TRACE(program.filename());
        EXPECT_THAT(read_elf(program, "--file-header"), ContainsRegex("Type: +DYN "));
        std::string const dynamic = read_elf(program, "--dynamic");
        EXPECT_THAT(dynamic, ContainsRegex("FLAGS_1[^\n]*NOW"));
        EXPECT_THAT(dynamic, ContainsRegex("FLAGS_1[^\n]*PIE"));
        EXPECT_THAT(dynamic, Not(ContainsRegex("RPATH|RUNPATH|TEXTREL")));
        std::string const segments = read_elf(program, "--segments");
        EXPECT_THAT(segments, HasSubstr("GNU_RELRO"));
        EXPECT_THAT(segments, ContainsRegex("GNU_STACK[^\n]* RW +0x"));
        EXPECT_THAT(segments, Not(ContainsRegex("RWE")));
    }
}

TEST_F(Installed, ProgramsAreCompiledWithEveryProtection) {
    for (fs::path const& program : programs) {
        SCOPED_TRACE(program.filename());
        // Every function that may be called by its address begins with endbr64. (The note that would have the system
        // enforce it is lost to the C library's own start files, which lack it on Debian 12.)
        EXPECT_GT(count(support::read_all(program), "\xf3\x0f\x1e\xfa"), 300);
        std::string const symbols = read_elf(program, "--dyn-syms");
        EXPECT_THAT(symbols, HasSubstr(" __stack_chk_fail@"));
        EXPECT_THAT(symbols, ContainsRegex(" __[a-z]+_chk@"));
    }
}

TEST(Build, ProtectsEveryUnit) {
    std::string const commands = support::read_all(HARDSILENCE_BINARY_DIR "/compile_commands.json");
    std::size_t units = 0;
    std::string const start = "\"command\": \"";
    for (auto at = commands.find(start); at != std::string::npos; at = commands.find(start, at + 1)) {
        std::string const command = commands.substr(at, commands.find('\n', at) - at);
        if (command.find("c++ ") == std::string::npos && command.find("g++ ") == std::string::npos) continue;
        ++units;
        EXPECT_THAT(command, HasSubstr(" -fstack-clash-protection "));
        EXPECT_THAT(command, HasSubstr(" -fstack-protector-strong "));
        EXPECT_THAT(command, HasSubstr(" -fcf-protection "));
    }
    EXPECT_GT(units, 50u);
}

} // namespace
