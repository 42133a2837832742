// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <limits>
#include <memory>
#include <string>
#include <string_view>

namespace kore {

/// The content of a file. (Not a string, which would zero its memory before the bytes are read.)
class FileText {
public:
    std::string_view View() const { return {bytes.get(), size}; }

private:
    friend bool read_file(std::string const& path, FileText& text, std::size_t most);

    std::unique_ptr<char[]> bytes;
    std::size_t size = 0;
};

/// Reads a whole file.
/// @param text  receives the bytes; unchanged on failure
/// @param most  bytes; a larger file is not read
/// @return false if there is no such regular file, it is larger, or it cannot be read or held in memory
bool read_file(std::string const& path, FileText& text, std::size_t most = std::numeric_limits<std::size_t>::max());

} // namespace kore
