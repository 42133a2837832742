// SPDX-License-Identifier: MIT
// Makes a program's manual page and completion scripts of its --help.
//     manual PAGE FOLDER PROGRAM...
// PAGE is mdoc with a line @OPTIONS@ where the options go, and perhaps @VERSION@; its name is that of the program and
// the section: hardsilence-play.6. PROGRAM is the command that prints the help, without --help. What is made goes to
// FOLDER: PAGE's name, and bash, zsh and fish with the program's name.

#include "tools/files/newfile.h"
#include "tools/manual/pages.h"

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <sstream>
#include <utility>

namespace fs = std::filesystem;

namespace {

/// What a command line of sh prints, if it ends well.
std::optional<std::string> output_of(std::string const& command) {
    FILE* const pipe = popen(command.c_str(), "r");
    if (!pipe) return {};
    std::string all;
    std::array<char, 4096> part{};
    while (std::size_t const read = std::fread(part.data(), 1, part.size(), pipe)) all.append(part.data(), read);
    return pclose(pipe) == 0 ? std::optional(all) : std::nullopt;
}

std::optional<std::string> contents(fs::path const& path) {
    std::ifstream file(path);
    std::ostringstream text;
    text << file.rdbuf();
    return file ? std::optional(text.str()) : std::nullopt;
}

void replace(std::string& text, std::string_view what, std::string_view with) {
    if (auto const at = text.find(what); at != std::string::npos) text.replace(at, what.size(), with);
}

int complain(std::string const& what) {
    std::cerr << "manual: " << what << std::endl;
    return 1;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 4) return complain("usage: manual PAGE FOLDER PROGRAM...");
    fs::path const source = argv[1];
    fs::path const folder = argv[2];
    std::string command;
    for (int i = 3; i < argc; ++i) command += "'" + std::string(argv[i]) + "' ";
    auto page = contents(source);
    if (!page) return complain("cannot read " + source.string());
    auto const text = output_of(command + "--help");
    if (!text) return complain("no help from " + command);
    auto const help = parse_help(*text);
    if (help.empty()) return complain("no options in the help of " + command);
    replace(*page, "@VERSION@", VERSION);
    replace(*page, "@OPTIONS@\n", manual_options(help));
    std::string const program = source.stem().string();
    std::pair<std::string, std::string> const files[] = {
        {source.filename(), *page},
        {program + ".bash", bash_completion(program, help)},
        {"_" + program, zsh_completion(program, help)},
        {program + ".fish", fish_completion(program, help)},
    };
    for (auto const& [name, content] : files) {
        if (std::string const wrong = write_file(folder / name, content); !wrong.empty()) return complain(wrong);
    }
    return 0;
}
