// SPDX-License-Identifier: MIT
#include "kore/readfile.h"

#include <fcntl.h>
#include <new>
#include <sys/stat.h>
#include <unistd.h>

namespace kore {

namespace {

/// Folders cannot be read, and pipes might never end. O_NONBLOCK avoids waiting for a writer.
bool regular_size(int file, std::size_t& size) {
    struct stat info {};
    if (fstat(file, &info) != 0 || !S_ISREG(info.st_mode)) return false;
    size = static_cast<std::size_t>(info.st_size);
    return true;
}

/// @param size  how much to read; receives how much there was if the file has become shorter
bool fill(int file, char* bytes, std::size_t& size) {
    std::size_t filled = 0;
    while (filled < size) {
        ssize_t const got = read(file, bytes + filled, size - filled);
        if (got < 0) return false;
        if (got == 0) break;
        filled += static_cast<std::size_t>(got);
    }
    size = filled;
    return true;
}

} // namespace

bool read_file(std::string const& path, FileText& text, std::size_t most) {
    int const file = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (file < 0) return false;
    std::size_t size = 0;
    std::unique_ptr<char[]> bytes;
    bool ok = regular_size(file, size) && size <= most;
    if (ok) bytes.reset(new (std::nothrow) char[size]);
    ok = ok && bytes && fill(file, bytes.get(), size);
    close(file);
    if (!ok) return false;
    text.bytes = std::move(bytes);
    text.size = size;
    return true;
}

} // namespace kore
