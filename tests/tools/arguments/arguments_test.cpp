// SPDX-License-Identifier: MIT
#include "tools/arguments/arguments.h"

#include <gmock/gmock.h>

using testing::HasSubstr;

namespace {

/// The result of a command line for a program with one option, which refuses one value.
struct Outcome {
    std::optional<int> status;
    std::vector<std::string> values; ///< as its reader got them
    std::string out;
    std::string error;
};

Outcome read(std::vector<char const*> const& arguments) {
    Outcome outcome;
    CLI::App app("Does nothing.", "tool");
    set_up(app);
    auto const keep = [&](std::string const& value) {
        outcome.values.push_back(value);
        return !value.starts_with("wrong");
    };
    add_value(app, "--value", "TEXT", keep, "a right one", "Anything but one text");
    std::vector<char const*> argv = {"/bin/of/another/name"};
    argv.insert(argv.end(), arguments.begin(), arguments.end());
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    outcome.status = read_arguments(app, static_cast<int>(argv.size()), argv.data());
    outcome.out = testing::internal::GetCapturedStdout();
    outcome.error = testing::internal::GetCapturedStderr();
    return outcome;
}

} // namespace

TEST(Arguments, ReachTheirReaderAsTheyAre) {
    for (char const* const value : {"", " ", "-h", "--value", "-1", "a=b", "[1,2]", "{}", "\"quoted\"", "two words"}) {
        SCOPED_TRACE(value);
        Outcome const outcome = read({"--value", value});
        EXPECT_FALSE(outcome.status.has_value());
        EXPECT_EQ(outcome.values, std::vector<std::string>{value});
        EXPECT_EQ(outcome.out + outcome.error, "");
    }
    EXPECT_EQ(read({"--value", "one", "--value", "two"}).values, std::vector<std::string>{"two"})
        << "the later one counts";
    EXPECT_TRUE(read({}).values.empty());
}

TEST(Arguments, AFaultIsOneLineOnStandardErrorAndStatusOne) {
    std::string const long_value(1000, 'x');
    std::pair<std::vector<char const*>, std::string> const cases[] = {
        {{"--value", "wrong"}, "--value: 'wrong' is not a right one"},
        {{"--value"}, "--value: 1 required TEXT missing"},
        {{"--fast"}, "The following argument was not expected: --fast"},
        {{"--value", "wrong\nlines"}, "--value: 'wrong\\x0alines' is not a right one"},
        {{long_value.c_str()}, "The following argument was not expected: " + std::string(156, 'x') + "..."},
        {{"file"}, "The following argument was not expected: file"},
    };
    for (auto const& [arguments, line] : cases) {
        Outcome const outcome = read(arguments);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.error, "tool: " + line + "\n");
        EXPECT_EQ(outcome.out, "");
    }
}

TEST(Arguments, HelpAndVersionGoToStandardOutputWithStatusZero) {
    for (char const* const option : {"-h", "--help"}) {
        Outcome const help = read({option});
        EXPECT_EQ(help.status, 0);
        EXPECT_EQ(help.error, "");
        EXPECT_THAT(help.out, HasSubstr("Does nothing.\n"));
        EXPECT_THAT(help.out, HasSubstr("\n  --value TEXT          Anything but one text\n"));
        EXPECT_THAT(help.out, testing::EndsWith("\nExit status: 0 done; 1 refused or failed, with one line that tells "
                                                "why; 128+n ended by signal n.\n"));
    }
    Outcome const version = read({"--version"});
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.error, "");
    EXPECT_EQ(version.out, "tool " HARDSILENCE_VERSION "\n");
}

TEST(Arguments, NumbersAreDecimalAndInRange) {
    unsigned int whole = 5;
    for (char const* const text : {"", " 7", "7 ", "+7", "-7", "0x7", "7.0", "7e0", "2", "11", "99999999999"}) {
        EXPECT_FALSE(read_number(text, 3u, 10u, whole)) << text;
    }
    EXPECT_EQ(whole, 5u);
    EXPECT_TRUE(read_number("010", 3u, 10u, whole));
    EXPECT_EQ(whole, 10u);

    double number = 0.5;
    for (char const* const text : {"nan", "inf", "1,5", "0x1p0", "2.0001", "-1"}) {
        EXPECT_FALSE(read_number(text, 0.0, 2.0, number)) << text;
    }
    EXPECT_EQ(number, 0.5);
    EXPECT_TRUE(read_number("15e-1", 0.0, 2.0, number));
    EXPECT_EQ(number, 1.5);
}
