#include "kore/readfile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kore {

namespace {

bool read_all(int file, std::string& bytes) {
    struct stat info {};
    // Folders cannot be read, and pipes might never end. O_NONBLOCK has let us look without waiting for a writer.
    if (fstat(file, &info) != 0 || !S_ISREG(info.st_mode)) return false;

    bytes.resize(static_cast<std::size_t>(info.st_size));
    std::size_t filled = 0;
    while (filled < bytes.size()) {
        ssize_t const got = read(file, bytes.data() + filled, bytes.size() - filled);
        if (got < 0) return false;
        if (got == 0) break;
        filled += static_cast<std::size_t>(got);
    }
    bytes.resize(filled);
    return true;
}

} // namespace

bool read_file(std::string const& path, std::string& text) {
    int const file = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (file < 0) return false;
    std::string bytes;
    bool const ok = read_all(file, bytes);
    close(file);
    if (ok) text = std::move(bytes);
    return ok;
}

} // namespace kore
