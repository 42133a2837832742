// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

/// A folder of its own that goes away with it.
class ScratchFolder {
public:
    ScratchFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "soundtrack-XXXXXX").string();
        if (mkdtemp(name.data()) != nullptr) my_path = name;
    }
    ~ScratchFolder() {
        std::error_code ignored;
        if (!my_path.empty()) std::filesystem::remove_all(my_path, ignored);
    }
    ScratchFolder(ScratchFolder const&) = delete;
    ScratchFolder& operator=(ScratchFolder const&) = delete;
    [[nodiscard]] std::string const& Path() const { return my_path; }

private:
    std::string my_path; ///< empty when it could not be made
};
