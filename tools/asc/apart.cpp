// SPDX-License-Identifier: MIT
#include "tools/asc/apart.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <new>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace asc {

namespace {

constexpr int hungry = 3; // exit statuses of the child
constexpr int thrown = 4;
constexpr int not_written = 5;

void set_limit(int resource, rlim_t value) {
    rlimit const limit{value, value};
    setrlimit(resource, &limit);
}

void limit_memory([[maybe_unused]] std::size_t bytes) {
#ifndef __SANITIZE_ADDRESS__ // whose shadow takes terabytes of addresses
    set_limit(RLIMIT_AS, bytes);
#endif
}

bool write_all(int file, std::string const& bytes) {
    for (std::size_t at = 0; at < bytes.size();) {
        ssize_t const written = write(file, bytes.data() + at, bytes.size() - at);
        if (written < 0 && errno != EINTR) return false;
        if (written > 0) at += static_cast<std::size_t>(written);
    }
    return true;
}

[[noreturn]] void be_child(std::function<std::string()> const& work, int out, std::size_t memory) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    int const nothing = open("/dev/null", O_RDWR | O_CLOEXEC);
    for (int const stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) dup2(nothing, stream);
    set_limit(RLIMIT_CORE, 0);
    limit_memory(memory);
    int status = 0;
    try {
        if (!write_all(out, work())) status = not_written;
    } catch (std::bad_alloc const&) {
        status = hungry;
    } catch (...) {
        status = thrown;
    }
    _exit(status);
}

/// Reads to the end of the pipe.
/// @return "", or why that was not reached
std::string read_all(int in, Limits const& limits, std::string& bytes) {
    auto const until = std::chrono::steady_clock::now() + limits.time;
    constexpr std::size_t piece = 65536;
    for (;;) {
        auto const left = std::chrono::ceil<std::chrono::milliseconds>(until - std::chrono::steady_clock::now());
        pollfd ready{in, POLLIN, 0};
        if (left.count() <= 0 || poll(&ready, 1, static_cast<int>(left.count())) == 0) {
            return "it takes more than " + std::to_string(limits.time.count() / 1000) + " s";
        }
        std::size_t const size = bytes.size();
        bytes.resize(size + piece);
        ssize_t const got = read(in, bytes.data() + size, piece);
        bytes.resize(size + static_cast<std::size_t>(std::max(got, ssize_t{0})));
        if (got == 0) return "";
        if (got < 0 && errno != EINTR) return std::strerror(errno);
        if (bytes.size() > limits.result) return "it gives too much";
    }
}

std::string failure_of(int status, std::size_t memory) {
    if (WIFSIGNALED(status)) {
        int const signal = WTERMSIG(status);
        return "it ended by signal " + std::to_string(signal) + " (" + strsignal(signal) + ")";
    }
    switch (WEXITSTATUS(status)) {
    case 0:
        return "";
    case hungry:
        return "it takes more than " + std::to_string(memory >> 20) + " MiB of memory";
    default:
        return "it failed";
    }
}

} // namespace

Result run_apart(std::function<std::string()> const& work, Limits const& limits) {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) return {"", std::strerror(errno)};
    pid_t const child = fork();
    if (child == 0) {
        close(ends[0]);
        be_child(work, ends[1], limits.memory);
    }
    close(ends[1]);
    Result result;
    result.failure = child < 0 ? std::strerror(errno) : read_all(ends[0], limits, result.bytes);
    close(ends[0]);
    if (child > 0) {
        if (!result.failure.empty()) kill(child, SIGKILL);
        int status = 0;
        while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
        }
        if (result.failure.empty()) result.failure = failure_of(status, limits.memory);
    }
    if (!result.failure.empty()) result.bytes.clear();
    return result;
}

} // namespace asc
