// SPDX-License-Identifier: MIT
// Puts files in a folder under their own names, as copies; each that differs is replaced whole or not at all.

#include "tools/files/newfile.h"
#include "tools/files/streams.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <sstream>

namespace fs = std::filesystem;

namespace {

std::optional<std::string> read(fs::path const& path) {
    std::error_code error;
    if (!fs::is_regular_file(path, error)) return {};
    std::ifstream in(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    if (!in.is_open() || in.bad()) return {};
    return bytes.str();
}

/// @return "", or what went wrong
std::string place(fs::path const& from, fs::path const& folder) {
    auto const bytes = read(from);
    if (!bytes) return "cannot read " + from.string();
    fs::path const to = folder / from.filename();
    return read(to) == bytes ? "" : write_file(to.string(), *bytes);
}

} // namespace

int main(int argc, char** argv) {
    prepare_streams();
    if (argc < 3) {
        std::cerr << "usage: place FILE... FOLDER" << std::endl;
        return 2;
    }
    std::error_code error;
    fs::create_directories(argv[argc - 1], error); // place() tells if that failed
    for (int i = 1; i < argc - 1; ++i) {
        if (std::string const wrong = place(argv[i], argv[argc - 1]); !wrong.empty()) {
            std::cerr << "place: " << wrong << std::endl;
            return 1;
        }
    }
    return 0;
}
