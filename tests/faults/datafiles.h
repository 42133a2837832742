// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

namespace faults {

/// Names of the mesh files that the show loads, in order.
inline std::vector<std::string> mesh_files() {
    std::vector<std::string> names;
    for (auto const& entry : std::filesystem::directory_iterator(HARDSILENCE_SOURCE_DIR "/data")) {
        if (entry.path().extension() == ".asc") names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

/// @return that many random bytes
inline std::string noise(std::size_t size, std::minstd_rand& generator) {
    std::string bytes(size, '\0');
    for (char& byte : bytes) byte = static_cast<char>(generator() >> 8);
    return bytes;
}

/// The error line about a mesh file on standard output, as a pattern.
inline std::string error_line(std::string const& message) {
    std::string escaped;
    for (char const c : message) {
        if (c == '.' || c == '(' || c == ')') escaped += '\\';
        escaped += c;
    }
    return "E: kore/ascmodel\\.cpp:[0-9]+, LoadModelFromFile\\(\\) " + escaped + "\n";
}

} // namespace faults
