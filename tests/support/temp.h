// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <unistd.h>

namespace support {

/// @return the bytes of a file; "" where there is none
inline std::string read_all(std::filesystem::path const& path) {
    std::ostringstream bytes;
    bytes << std::ifstream(path, std::ios::binary).rdbuf();
    return bytes.str();
}

/// A new empty folder, removed with the object.
class TempFolder {
public:
    TempFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "hardsilence-test-XXXXXX").string();
        if (mkdtemp(name.data())) folder = name;
    }
    ~TempFolder() {
        std::error_code error;
        if (!folder.empty()) std::filesystem::remove_all(folder, error);
    }
    TempFolder(TempFolder const&) = delete;
    TempFolder& operator=(TempFolder const&) = delete;

    std::string Path(std::string const& name) const { return (folder / name).string(); }

    /// @return path of the file
    std::string Write(std::string const& name, std::string const& bytes) const {
        std::ofstream(Path(name), std::ios::binary) << bytes;
        return Path(name);
    }

private:
    std::filesystem::path folder;
};

} // namespace support
