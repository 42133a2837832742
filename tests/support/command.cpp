// SPDX-License-Identifier: MIT
#include "tests/support/command.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <iostream>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace support {

namespace {

constexpr int cannot_enter_folder = 126;
constexpr int cannot_start = 127;

/// An anonymous file for what a child writes.
class Capture {
public:
    Capture() : file(std::tmpfile()) {
        if (!file) throw std::runtime_error("no temporary file");
        fcntl(fileno(file), F_SETFD, FD_CLOEXEC); // programs get the standard streams and nothing else
    }
    ~Capture() { std::fclose(file); }
    Capture(Capture const&) = delete;
    Capture& operator=(Capture const&) = delete;

    void Take(int stream) const { dup2(fileno(file), stream); }

    std::string Text() const {
        std::string text;
        char buffer[4096];
        std::rewind(file);
        for (std::size_t n = 0; (n = std::fread(buffer, 1, sizeof buffer, file)) > 0;) text.append(buffer, n);
        return text;
    }

private:
    std::FILE* file;
};

void flush_streams() {
    std::cout.flush();
    std::fflush(nullptr);
}

/// Whatever the tests' own standard input is, a terminal, a pipe or nothing at all.
void take_no_input() {
    int const nothing = open("/dev/null", O_RDONLY);
    dup2(nothing, STDIN_FILENO);
    if (nothing != STDIN_FILENO) close(nothing);
}

[[noreturn]] void be_child(std::function<int()> const& work, Surroundings const& surroundings) {
    setpgid(0, 0); // a group of its own, so that its children can be killed with it
    rlimit const no_core{0, 0};
    setrlimit(RLIMIT_CORE, &no_core);
    change_environment(surroundings.environment);
    if (!surroundings.folder.empty() && chdir(surroundings.folder.c_str()) != 0) _exit(cannot_enter_folder);
    int const status = work();
    flush_streams();
    _exit(status);
}

/// @return status as waitpid gives it
int wait_or_kill(pid_t child, std::chrono::milliseconds limit) {
    auto const until = std::chrono::steady_clock::now() + limit;
    int status = 0;
    while (waitpid(child, &status, WNOHANG) != child) {
        if (std::chrono::steady_clock::now() >= until) {
            kill(-child, SIGKILL);
            waitpid(child, &status, 0);
            break;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return status;
}

} // namespace

void change_environment(std::vector<std::string> const& changes) {
    for (std::string const& change : changes) {
        auto const equals = change.find('=');
        if (equals == std::string::npos) {
            unsetenv(change.c_str());
        } else {
            setenv(change.substr(0, equals).c_str(), change.substr(equals + 1).c_str(), 1);
        }
    }
}

Outcome run_in_child(std::function<int()> const& work, Surroundings const& surroundings) {
    Capture const output;
    Capture const error;
    flush_streams(); // or the child would write the rest of them again
    pid_t const child = fork();
    if (child < 0) throw std::runtime_error("cannot fork");
    if (child == 0) {
        output.Take(STDOUT_FILENO);
        error.Take(STDERR_FILENO);
        take_no_input();
        be_child(work, surroundings);
    }
    setpgid(child, child); // in both processes, so that it is done in time for either
    int const status = wait_or_kill(child, surroundings.limit);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, WIFSIGNALED(status) ? WTERMSIG(status) : 0, output.Text(),
            error.Text()};
}

Outcome run(std::vector<std::string> const& arguments, Surroundings const& surroundings) {
    std::vector<char*> argv;
    for (std::string const& argument : arguments) argv.push_back(const_cast<char*>(argument.c_str()));
    argv.push_back(nullptr);
    auto const start = [&] {
        execvp(argv[0], argv.data());
        return cannot_start;
    };
    return run_in_child(start, surroundings);
}

Outcome run_shell(std::string const& line, Surroundings const& surroundings) {
    return run({"/bin/sh", "-c", line}, surroundings);
}

} // namespace support
