// SPDX-License-Identifier: MIT
#include "runtime/streams.h"

#include <SFML/System/Err.hpp>
#include <algorithm>
#include <atomic>
#include <climits>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <iostream>
#include <poll.h>
#include <unistd.h>

namespace {

std::atomic<int> standard_error = STDERR_FILENO; ///< where it is while that is kept quiet

} // namespace

void open_missing_streams() {
    for (int const stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        // The lowest free descriptor is this one: those below it are open.
        if (fcntl(stream, F_GETFD) < 0) [[maybe_unused]]
            int const opened = open("/dev/null", O_RDWR);
    }
}

bool write_what_fits(int descriptor, std::string_view text, int patience) {
    while (!text.empty()) {
        pollfd room{descriptor, POLLOUT, 0};
        if (poll(&room, 1, patience) != 1) return false;
        // A pipe that has room takes so much at once; more might block.
        ssize_t const written = write(descriptor, text.data(), std::min<std::size_t>(text.size(), PIPE_BUF));
        if (written <= 0) return false;
        text.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

void write_error_line(std::string_view line) { write_what_fits(standard_error, line, 0); }

DroppingBuffer::int_type DroppingBuffer::overflow(int_type c) {
    if (c != traits_type::eof()) waiting += static_cast<char>(c);
    return traits_type::not_eof(c);
}

std::streamsize DroppingBuffer::xsputn(char const* text, std::streamsize size) {
    waiting.append(text, static_cast<std::size_t>(size));
    return size;
}

int DroppingBuffer::sync() {
    bool const all = write_what_fits(my_descriptor, waiting, patience);
    waiting.clear();
    return all ? 0 : -1;
}

DroppingStreams::DroppingStreams()
    : output(STDOUT_FILENO), error(STDERR_FILENO), output_before(std::cout.rdbuf(&output)),
      error_before(std::cerr.rdbuf(&error)) {
    std::signal(SIGPIPE, SIG_IGN);
}

DroppingStreams::~DroppingStreams() {
    std::cout.flush();
    std::cerr.flush();
    std::cout.rdbuf(output_before);
    std::cerr.rdbuf(error_before);
}

void DroppingStreams::BeImpatient() {
    output.SetPatience(0);
    error.SetPatience(0);
}

LibraryWords::LibraryWords() : before(sf::err().rdbuf(this)) {}

LibraryWords::~LibraryWords() { sf::err().rdbuf(before); }

LibraryWords::int_type LibraryWords::overflow(int_type c) {
    char const character = static_cast<char>(c);
    if (c != traits_type::eof()) Take(&character, 1);
    return traits_type::not_eof(c);
}

std::streamsize LibraryWords::xsputn(char const* text, std::streamsize size) {
    Take(text, static_cast<std::size_t>(size));
    return size;
}

void LibraryWords::Take(char const* text, std::size_t size) {
    std::lock_guard const lock(mutex);
    if (complete) return;
    std::string_view const words(text, size);
    auto const end = words.find('\n');
    line += words.substr(0, end);
    if (end == std::string_view::npos) return;
    complete = true;
    if (released) PrintOnce();
}

// Not by std::cerr, which another thread may be using.
void LibraryWords::PrintOnce() const { write_error_line(line + '\n'); }

void LibraryWords::Release() {
    std::lock_guard const lock(mutex);
    if (complete && !released) PrintOnce();
    released = true;
}

QuietStandardError::QuietStandardError() : saved(fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 0)) {
    std::fflush(stderr);
    int const nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
    if (saved >= 0 && nowhere >= 0) {
        dup2(nowhere, STDERR_FILENO);
        standard_error = saved;
    }
    if (nowhere >= 0) close(nowhere);
}

QuietStandardError::~QuietStandardError() {
    if (saved < 0) return;
    std::fflush(stderr);
    dup2(saved, STDERR_FILENO);
    standard_error = STDERR_FILENO;
    close(saved);
}
