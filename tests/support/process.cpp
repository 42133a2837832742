// SPDX-License-Identifier: MIT
#include "tests/support/process.h"

#include "tests/support/command.h"

#include <cstdio>
#include <fcntl.h>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

std::string temporary_file() {
    char path[] = "/tmp/hardsilence-window-XXXXXX";
    int const file = mkstemp(path);
    if (file < 0) throw std::runtime_error("no temporary file");
    close(file);
    return path;
}

void redirect(std::string const& path, int to) {
    int const file = open(path.c_str(), O_WRONLY | O_TRUNC);
    dup2(file, to);
    close(file);
}

} // namespace

Process::Process(std::vector<std::string> const& arguments, std::vector<std::string> const& changes,
                 std::string const& folder)
    : out_path(temporary_file()), error_path(temporary_file()) {
    std::vector<char*> argv;
    for (std::string const& argument : arguments) argv.push_back(const_cast<char*>(argument.c_str()));
    argv.push_back(nullptr);
    pid = fork();
    if (pid != 0) return;
    redirect(out_path, STDOUT_FILENO);
    redirect(error_path, STDERR_FILENO);
    support::change_environment(changes);
    if (!folder.empty() && chdir(folder.c_str()) != 0) _exit(126);
    execvp(argv[0], argv.data());
    _exit(127);
}

Process::~Process() {
    if (Running()) {
        Signal(SIGKILL);
        Wait(std::chrono::seconds(10));
    }
    std::remove(out_path.c_str());
    std::remove(error_path.c_str());
}

std::optional<int> Process::Wait(std::chrono::milliseconds longest) {
    auto const until = std::chrono::steady_clock::now() + longest;
    while (!ended) {
        int status = 0;
        if (waitpid(pid, &status, WNOHANG) == pid) {
            ended = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
        } else if (std::chrono::steady_clock::now() >= until) {
            break;
        } else {
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
    }
    return ended;
}

void Process::Signal(int number) const { kill(pid, number); }

double Process::ProcessorSeconds() const {
    // /proc/PID/stat: user and system time are the 14th and 15th fields, in clock ticks.
    std::istringstream stat(Read("/proc/" + std::to_string(pid) + "/stat"));
    std::string field;
    for (int i = 0; i < 13; ++i) stat >> field;
    double user = 0;
    double system = 0;
    stat >> user >> system;
    return (user + system) / static_cast<double>(sysconf(_SC_CLK_TCK));
}

std::string Process::Read(std::string const& path) {
    std::ifstream file(path);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}
