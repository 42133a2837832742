#include "tools/files/streams.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <fcntl.h>
#include <iostream>
#include <new>
#include <system_error>
#include <unistd.h>

namespace {

/// A number of bytes that are one character, and the first of them.
struct Utf8Row {
    std::uint8_t mask, mark; ///< of the first byte
    std::size_t bytes;
    char32_t least; ///< shorter ones are written in fewer bytes
};

constexpr Utf8Row utf8_rows[] = {
    {0x80, 0x00, 1, 0}, {0xE0, 0xC0, 2, 0x80}, {0xF0, 0xE0, 3, 0x800}, {0xF8, 0xF0, 4, 0x10000}};

/// @return bytes of the character that the text starts with; 0 if it is none, or one that steers a terminal
std::size_t plain_character(std::string_view text) {
    auto const byte = [&](std::size_t i) { return static_cast<std::uint8_t>(text[i]); };
    for (Utf8Row const& row : utf8_rows) {
        if ((byte(0) & row.mask) != row.mark || text.size() < row.bytes) continue;
        char32_t code = byte(0) & static_cast<std::uint8_t>(~row.mask);
        for (std::size_t i = 1; i < row.bytes; ++i) {
            if ((byte(i) & 0xC0) != 0x80) return 0;
            code = code << 6 | (byte(i) & 0x3F);
        }
        bool const control = code < 0x20 || (code >= 0x7F && code < 0xA0);
        bool const character = code >= row.least && code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
        return character && !control ? row.bytes : 0;
    }
    return 0;
}

} // namespace

std::string printable(std::string_view text) {
    std::string out;
    while (!text.empty()) {
        std::size_t const bytes = plain_character(text);
        if (bytes > 0) {
            out += text.substr(0, bytes);
        } else {
            char escape[5];
            std::snprintf(escape, sizeof escape, "\\x%02x",
                          static_cast<unsigned int>(static_cast<std::uint8_t>(text[0])));
            out += escape;
        }
        text.remove_prefix(std::max(bytes, std::size_t{1}));
    }
    return out;
}

int complain(char const* name, std::string const& message) {
    std::cerr << name << ": " << printable(message) << std::endl;
    return 1;
}

int run_tool(char const* name, std::function<int()> const& work) {
    prepare_streams();
    int status = 1;
    try {
        status = work();
    } catch (std::bad_alloc const&) {
        complain(name, "out of memory");
    } catch (std::exception const& error) {
        complain(name, error.what());
    }
    return finish_output(name, status);
}

void prepare_streams() {
    for (int const stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(stream, F_GETFD) >= 0) continue;
        if (open("/dev/null", O_RDWR) < 0) return; // the lowest number that is free
    }
    static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
}

int finish_output(char const* name, int status) {
    errno = 0;
    bool const flushed = std::fflush(stdout) == 0; // std::cout writes through it
    if (flushed && std::cout.good() && !std::ferror(stdout)) return status;
    std::string const reason = errno != 0 ? ": " + std::generic_category().message(errno) : "";
    return status == 0 ? complain(name, "cannot write to standard output" + reason) : 1;
}
