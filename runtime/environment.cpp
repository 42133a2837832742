// SPDX-License-Identifier: MIT
#include "runtime/environment.h"

#include <charconv>
#include <cstdlib>
#include <iostream>
#include <string_view>

namespace {

constexpr int most_monitors = 99;
constexpr int longest_offset = 2000; // ms

std::string_view value_of(char const* variable) {
    char const* const value = std::getenv(variable);
    return value ? value : "";
}

bool is_on(char const* variable) {
    std::string_view const value = value_of(variable);
    return !value.empty() && value != "0";
}

/// Reads a decimal number; a variable without a value leaves it as it is.
/// @return false, after a line, for anything else
bool read_number(char const* variable, int least, int most, int& number) {
    std::string_view const value = value_of(variable);
    if (value.empty()) return true;
    char const* const end = value.data() + value.size();
    int found = 0;
    auto const [rest, error] = std::from_chars(value.data(), end, found);
    if (error == std::errc() && rest == end && found >= least && found <= most) {
        number = found;
        return true;
    }
    std::cerr << variable << ": '" << value << "' is not a number from " << least << " to " << most << '.' << std::endl;
    return false;
}

} // namespace

effect::Look look_from_environment() {
    effect::Look look;
    look.standard_wire = is_on("HARDSILENCE_WIRE");
    look.calm = is_on("HARDSILENCE_CALM");
    return look;
}

std::optional<Settings> settings_from_environment() {
    Settings settings;
    settings.check = is_on("HARDSILENCE_CHECK");
    settings.desktop = is_on("HARDSILENCE_DESKTOP");
    settings.stretch = is_on("HARDSILENCE_STRETCH");
    settings.list_monitors = value_of("HARDSILENCE_MONITOR") == "list";
    settings.pace = is_on("HARDSILENCE_PACE");
    settings.sound_clock = is_on("HARDSILENCE_SOUND");
    if (!settings.list_monitors && !read_number("HARDSILENCE_MONITOR", 1, most_monitors, settings.monitor)) return {};
    if (!read_number("HARDSILENCE_OFFSET", -longest_offset, longest_offset, settings.offset)) return {};
    return settings;
}
