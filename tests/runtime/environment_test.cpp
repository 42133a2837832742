// SPDX-License-Identifier: MIT
#include "runtime/environment.h"

#include <cstdlib>
#include <gtest/gtest.h>

namespace {

/// The environment without the program's variables, at its start and at its end.
class SettingsFrom : public testing::Test {
protected:
    SettingsFrom() { Clear(); }
    ~SettingsFrom() override { Clear(); }

    static void Clear() {
        for (char const* name : {"CHECK", "DESKTOP", "STRETCH", "MONITOR", "PACE", "SOUND", "OFFSET"}) {
            unsetenv((std::string("HARDSILENCE_") + name).c_str());
        }
    }
    /// @return what is said on standard error
    std::string Read() {
        testing::internal::CaptureStderr();
        settings = settings_from_environment();
        return testing::internal::GetCapturedStderr();
    }
    std::optional<Settings> settings;
};

TEST_F(SettingsFrom, AnEmptyEnvironmentAreTheExactPrograms) {
    EXPECT_EQ(Read(), "");
    ASSERT_TRUE(settings);
    EXPECT_FALSE(settings->desktop);
    EXPECT_FALSE(settings->stretch);
    EXPECT_FALSE(settings->list_monitors);
    EXPECT_FALSE(settings->pace);
    EXPECT_FALSE(settings->sound_clock);
    EXPECT_EQ(settings->monitor, 0);
    EXPECT_EQ(settings->offset, 0);
}

TEST_F(SettingsFrom, SwitchesAreOnUnlessTheySayNo) {
    struct {
        char const* variable;
        bool Settings::*setting;
    } const rows[] = {{"HARDSILENCE_CHECK", &Settings::check},
                      {"HARDSILENCE_DESKTOP", &Settings::desktop},
                      {"HARDSILENCE_STRETCH", &Settings::stretch},
                      {"HARDSILENCE_PACE", &Settings::pace},
                      {"HARDSILENCE_SOUND", &Settings::sound_clock}};
    for (auto const& [variable, setting] : rows) {
        SCOPED_TRACE(variable);
        for (auto const& [value, on] : {std::pair{"", false}, {"0", false}, {"1", true}, {"yes", true}}) {
            setenv(variable, value, 1);
            EXPECT_EQ(Read(), "");
            ASSERT_TRUE(settings);
            EXPECT_EQ((*settings).*setting, on) << value;
        }
    }
}

struct NumberRow {
    char const* variable;
    int Settings::*setting;
    int least;
    int most;
};

constexpr NumberRow numbers[] = {{"HARDSILENCE_MONITOR", &Settings::monitor, 1, 99},
                                 {"HARDSILENCE_OFFSET", &Settings::offset, -2000, 2000}};

TEST_F(SettingsFrom, NumbersAreReadWithinTheirRange) {
    for (auto const& [variable, setting, least, most] : numbers) {
        SCOPED_TRACE(variable);
        for (int const number : {least, most}) {
            setenv(variable, std::to_string(number).c_str(), 1);
            EXPECT_EQ(Read(), "");
            ASSERT_TRUE(settings);
            EXPECT_EQ((*settings).*setting, number);
        }
        setenv(variable, "", 1);
        EXPECT_EQ(Read(), "");
        EXPECT_EQ((*settings).*setting, 0);
        unsetenv(variable);
    }
}

TEST_F(SettingsFrom, WhatIsNoNumberOfItsRangeIsToldInOneLine) {
    for (auto const& [variable, setting, least, most] : numbers) {
        std::string const range = " is not a number from " + std::to_string(least) + " to " + std::to_string(most);
        for (std::string const& value :
             {std::string("abc"), std::string("1x"), std::string(" 1"), std::string("+1"), std::string("1.5"),
              std::string("99999999999"), std::to_string(least - 1), std::to_string(most + 1)}) {
            setenv(variable, value.c_str(), 1);
            EXPECT_EQ(Read(), std::string(variable) + ": '" + value + "'" + range + ".\n");
            EXPECT_FALSE(settings);
        }
        unsetenv(variable);
    }
}

TEST_F(SettingsFrom, AMonitorMayBeTheListOfAll) {
    setenv("HARDSILENCE_MONITOR", "list", 1);
    EXPECT_EQ(Read(), "");
    ASSERT_TRUE(settings);
    EXPECT_TRUE(settings->list_monitors);
}

} // namespace
