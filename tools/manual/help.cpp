// SPDX-License-Identifier: MIT
#include "tools/manual/help.h"

#include <algorithm>
#include <sstream>

namespace {

constexpr std::size_t deepest_entry = 8; // columns; what stands farther in goes on with the line before
constexpr std::string_view required = "(required)";

std::string trimmed(std::string_view text) {
    auto const first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return "";
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

/// "-h, --help" or "-o OUT.png" or "FILE ...".
HelpEntry parse_names(std::string_view text) {
    HelpEntry entry;
    std::string spaced(text);
    std::ranges::replace(spaced, ',', ' ');
    std::istringstream words(spaced);
    for (std::string word; words >> word;) {
        if (word.size() > 1 && word.front() == '-' && entry.value.empty()) {
            entry.names.push_back(word);
        } else {
            entry.value += (entry.value.empty() ? "" : " ") + word;
        }
    }
    return entry;
}

/// @param line  without its indent
/// @return an entry without names and value if it is none
HelpEntry parse_entry(std::string_view line) {
    std::size_t gap = line.find(required);
    std::size_t rest = gap + required.size();
    if (gap == std::string_view::npos) gap = rest = line.find("  ");
    if (gap == std::string_view::npos) return {};
    HelpEntry entry = parse_names(line.substr(0, gap));
    entry.text = trimmed(line.substr(rest));
    return entry;
}

bool is_command(std::string_view line) {
    return std::ranges::all_of(line, [](char c) { return (c >= 'a' && c <= 'z') || c == '-'; });
}

} // namespace

std::vector<HelpSection> parse_help(std::string_view help) {
    std::vector<HelpSection> sections(1);
    std::istringstream lines{std::string(help)};
    for (std::string line; std::getline(lines, line);) {
        std::string const text = trimmed(line);
        if (text.empty()) continue;
        std::size_t const indent = line.find_first_not_of(' ');
        HelpSection& section = sections.back();
        if (indent == 0) {
            if (is_command(text)) sections.push_back({text, "", {}});
        } else if (indent > deepest_entry) {
            if (!section.entries.empty()) section.entries.back().text += " " + text;
        } else if (HelpEntry entry = parse_entry(text); !entry.names.empty() || !entry.value.empty()) {
            section.entries.push_back(std::move(entry));
        } else if (section.entries.empty() && section.text.empty() && text.back() != ':') {
            section.text = text;
        }
    }
    std::erase_if(sections, [](HelpSection const& s) { return s.command.empty() && s.entries.empty(); });
    return sections;
}
