#pragma once

#include <string>

namespace kore {

/// Reads a whole file.
/// @param text  receives the bytes; left alone on failure
/// @return false if there is no such regular file, or it cannot be read
bool read_file(std::string const& path, std::string& text);

} // namespace kore
