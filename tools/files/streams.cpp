// SPDX-License-Identifier: MIT
#include "tools/files/streams.h"

#include "runtime/streams.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
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

// For the report of a crash, which may not allocate. Who aborts has said why.
constexpr int crashes[] = {SIGSEGV, SIGBUS, SIGFPE, SIGILL};
constexpr std::size_t stack_size = 65536;
char const* crashing_tool = "";

extern "C" void tell_of_crash(int signal) {
    char const number[] = {static_cast<char>('0' + signal / 10), static_cast<char>('0' + signal % 10)};
    write_error_line(crashing_tool);
    write_error_line(": ended by signal ");
    write_error_line(signal < 10 ? std::string_view(number + 1, 1) : std::string_view(number, 2));
    write_error_line(", a fault of its own or of a library\n");
    // Its action is the default one again: what crashed does so again on return, and what was sent is sent again.
    raise(signal);
}

void tell_of_crashes([[maybe_unused]] char const* name) {
#ifndef __SANITIZE_ADDRESS__ // which tells more
    crashing_tool = name;
    stack_t stack{};                       // a crash may be one for want of stack
    stack.ss_sp = std::malloc(stack_size); // in use to the end
    stack.ss_size = stack_size;
    if (stack.ss_sp) sigaltstack(&stack, nullptr);
    struct sigaction action {};
    action.sa_handler = tell_of_crash;
    action.sa_flags = static_cast<int>(SA_ONSTACK | SA_RESETHAND);
    for (int const signal : crashes) sigaction(signal, &action, nullptr);
#endif
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
    tell_of_crashes(name);
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
    open_missing_streams();
    static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
}

int finish_output(char const* name, int status) {
    errno = 0;
    bool const flushed = std::fflush(stdout) == 0; // std::cout writes through it
    if (flushed && std::cout.good() && !std::ferror(stdout)) return status;
    std::string const reason = errno != 0 ? ": " + std::generic_category().message(errno) : "";
    return status == 0 ? complain(name, "cannot write to standard output" + reason) : 1;
}
