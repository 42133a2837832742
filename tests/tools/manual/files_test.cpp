// SPDX-License-Identifier: MIT
// The manual pages and completion scripts as they are installed.

#include "tests/support/command.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <sstream>

namespace fs = std::filesystem;
using testing::HasSubstr;

namespace {

class ManualFiles : public testing::TestWithParam<std::string> {
protected:
    std::string Program() const { return fs::path(GetParam()).stem(); }

    static std::string Path(std::string const& name) { return std::string(MANUALS) + "/" + name; }

    static std::string Read(std::string const& path) {
        std::ifstream file(path);
        std::ostringstream text;
        text << file.rdbuf();
        EXPECT_TRUE(file) << path;
        return text.str();
    }

    /// Expects a program to have nothing to say about a file.
    static void Pleases(std::vector<std::string> command, std::string const& file) {
        command.push_back(Path(file));
        support::Outcome const outcome = support::run(command);
        EXPECT_EQ(outcome.status, 0) << command[0];
        EXPECT_EQ(outcome.output + outcome.error, "") << command[0];
    }
};

TEST_P(ManualFiles, PleaseTheProgramsThatReadThem) {
    // "referenced manual not found" is about what is installed here, and an operating system of our own is meant.
    std::string const lint = "mandoc -Tlint -Wstyle '" + Path(GetParam()) +
                             "' | grep -v -e 'referenced manual not found' -e 'operating system explicitly specified'";
    EXPECT_EQ(support::run_shell(lint).output, "");
    Pleases({"bash", "-n"}, Program() + ".bash");
    Pleases({"zsh", "-n"}, "_" + Program());
    Pleases({"fish", "--no-execute"}, Program() + ".fish");
}

TEST_P(ManualFiles, TellTheOptions) {
    support::Outcome const outcome = support::run({"mandoc", "-Tascii", Path(GetParam())});
    ASSERT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.output, HasSubstr("S\bSY\bYN\bNO\bOP\bPS\bSI\bIS\bS"));
    EXPECT_EQ(outcome.output.find("@"), std::string::npos) << "something was not replaced";
    EXPECT_THAT(Read(Path(Program() + ".fish")), HasSubstr("complete -c " + Program() + " "));
}

TEST_P(ManualFiles, WarnOfTheStrobes) {
    if (Program() == "asc") return; // it shows nothing
    std::string const page = Read(Path(GetParam()));
    EXPECT_THAT(page, HasSubstr(".Sy Warning :\n"));
    EXPECT_THAT(page, testing::AnyOf(HasSubstr("Fl -calm"), HasSubstr("Ev HARDSILENCE_CALM=1")));
}

INSTANTIATE_TEST_SUITE_P(Pages, ManualFiles,
                         testing::Values("hardsilence.6", "hardsilence-play.6", "hardsilence-record.1", "asc.1"),
                         [](auto const& page) {
                             std::string name = fs::path(page.param).stem();
                             std::ranges::replace(name, '-', '_');
                             return name;
                         });

/// Every variable that the program reads is in its manual page, and the other way round.
TEST(ManualPages, TellTheVariables) {
    auto const variables = [](std::string const& command) {
        return support::run_shell(command + " | grep -o 'HARDSILENCE_[A-Z]*' | sort -u").output;
    };
    std::string const read = variables("cat runtime/environment.cpp");
    EXPECT_THAT(read, HasSubstr("HARDSILENCE_CALM"));
    EXPECT_EQ(variables("cat tools/manual/pages/hardsilence.6"), read);
}

} // namespace
