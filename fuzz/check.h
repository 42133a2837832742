// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <streambuf>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

namespace fuzz {

/// Ends the run as a finding, with one line naming what does not hold.
inline void require(bool holds, char const* what) {
    if (holds) return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

/// Discards what is printed during its lifetime: a million error lines are of no use.
class Quiet {
public:
    Quiet() : before(std::cout.rdbuf(&nothing)), error_before(std::cerr.rdbuf(&nothing)) {}
    ~Quiet() {
        std::cout.rdbuf(before);
        std::cerr.rdbuf(error_before);
    }
    Quiet(Quiet const&) = delete;
    Quiet& operator=(Quiet const&) = delete;

private:
    struct Nothing final : std::streambuf {
        int overflow(int c) override { return traits_type::not_eof(c); }
        std::streamsize xsputn(char const*, std::streamsize n) override { return n; }
    };
    Nothing nothing;
    std::streambuf* before;
    std::streambuf* error_before;
};

/// A file in memory that has a path.
class MemoryFile {
public:
    MemoryFile() : file(memfd_create("fuzz", MFD_CLOEXEC)) { require(file >= 0, "a file in memory can be made"); }
    ~MemoryFile() { close(file); }
    MemoryFile(MemoryFile const&) = delete;
    MemoryFile& operator=(MemoryFile const&) = delete;

    /// Replaces the content of the file.
    /// @return its path
    std::string Write(void const* bytes, std::size_t size) const {
        require(ftruncate(file, 0) == 0, "the file can be emptied");
        require(pwrite(file, bytes, size, 0) == static_cast<ssize_t>(size), "the file can be written");
        return "/proc/self/fd/" + std::to_string(file);
    }

private:
    int file;
};

} // namespace fuzz
