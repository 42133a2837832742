// SPDX-License-Identifier: MIT
#include "tools/manual/pages.h"

#include <sstream>

namespace {

constexpr std::size_t longest_line = 78;

/// A word that cannot be taken for markup.
std::string escaped(std::string const& word) {
    std::string safe = word.find_first_of(".'") == 0 ? "\\&" : "";
    for (char const c : word) {
        if (c == '\\')
            safe += "\\e";
        else
            safe += c;
    }
    return safe;
}

/// Text in lines that are not too long for mdoc's readers.
std::string paragraph(std::string const& text) {
    std::string lines;
    std::string line;
    std::istringstream words(text);
    for (std::string word; words >> word;) {
        word = escaped(word);
        if (!line.empty() && line.size() + 1 + word.size() > longest_line) {
            lines += line + "\n";
            line.clear();
        }
        line += (line.empty() ? "" : " ") + word;
    }
    return lines + line + "\n";
}

std::string item(HelpEntry const& entry) {
    std::string line = ".It";
    for (std::size_t i = 0; i < entry.names.size(); ++i) {
        line += (i == 0 ? " Fl " : " , Fl ") + escaped(entry.names[i].substr(1));
    }
    if (!entry.value.empty()) line += " Ar " + escaped(entry.value);
    return line + "\n" + paragraph(entry.text);
}

} // namespace

std::string manual_options(std::vector<HelpSection> const& help) {
    std::string page;
    for (HelpSection const& section : help) {
        if (!section.command.empty()) page += ".Ss " + section.command + "\n" + paragraph(section.text + ".");
        if (section.entries.empty()) continue;
        page += ".Bl -tag -width Ds\n";
        for (HelpEntry const& entry : section.entries) page += item(entry);
        page += ".El\n";
    }
    return page;
}
