#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace kore {

/// What a file holds. Not a string, which would first fill its memory with zeros.
class FileText {
public:
    std::string_view View() const { return {bytes.get(), size}; }

private:
    friend bool read_file(std::string const& path, FileText& text);

    std::unique_ptr<char[]> bytes;
    std::size_t size = 0;
};

/// Reads a whole file.
/// @param text  receives the bytes; left alone on failure
/// @return false if there is no such regular file, or it cannot be read or held in memory
bool read_file(std::string const& path, FileText& text);

} // namespace kore
