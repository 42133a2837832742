// SPDX-License-Identifier: MIT
#include "tools/rehearse/background.h"

#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ; // NOLINT(*-redundant-declaration)

Background::~Background() {
    if (!Running()) return;
    kill(-pid, SIGTERM);
    waitpid(pid, nullptr, 0);
    close(output);
}

bool Background::Start(std::vector<std::string> const& arguments) {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) return false;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDERR_FILENO);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP); // its children end with it
    std::vector<std::string> words = arguments;
    std::vector<char*> argv;
    argv.reserve(words.size() + 1);
    for (std::string& word : words) argv.push_back(word.data());
    argv.push_back(nullptr);
    int const error = posix_spawnp(&pid, argv[0], &actions, &attributes, argv.data(), environ);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    line.clear();
    beginning.clear();
    if (error != 0) {
        close(ends[0]);
        pid = -1;
        return false;
    }
    output = ends[0];
    fcntl(output, F_SETFL, O_NONBLOCK);
    return true;
}

bool Background::Poll() {
    if (!Running()) return false;
    Read();
    int status = 0;
    if (waitpid(pid, &status, WNOHANG) != pid) return false;
    Read();
    close(output);
    pid = -1;
    succeeded = WIFEXITED(status) && WEXITSTATUS(status) == 0;
    return true;
}

void Background::Read() {
    char part[4096];
    for (ssize_t got = 0; (got = read(output, part, sizeof part)) > 0;) {
        for (ssize_t i = 0; i < got; ++i) {
            if (part[i] != '\n') {
                beginning += part[i];
            } else if (!beginning.empty()) {
                line = beginning;
                beginning.clear();
            }
        }
    }
}
