// SPDX-License-Identifier: MIT
#include "tools/film/encoder.h"

#include "tools/film/command.h"
#include "tools/film/descriptors.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ; // NOLINT(*-redundant-declaration): not every unistd.h declares it

namespace {

constexpr int pipe_size = 1 << 20; // bytes; as much as Linux allows without privileges

/// What ffmpeg gets: a group of its own, so that the terminal's Ctrl-C leaves its end to us, and no signals blocked.
class Attributes {
public:
    Attributes() {
        posix_spawnattr_init(&attributes);
        posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
        sigset_t none;
        sigemptyset(&none);
        posix_spawnattr_setsigmask(&attributes, &none);
        sigset_t pipes = none;
        sigaddset(&pipes, SIGPIPE);
        posix_spawnattr_setsigdefault(&attributes, &pipes);
    }
    ~Attributes() { posix_spawnattr_destroy(&attributes); }
    Attributes(Attributes const&) = delete;
    Attributes& operator=(Attributes const&) = delete;

    posix_spawnattr_t attributes;
};

/// Its standard input is the pipe, its output nowhere, its errors a file.
class Streams {
public:
    Streams(int input, int errors) {
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, input, STDIN_FILENO);
        posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_adddup2(&actions, errors, STDERR_FILENO);
    }
    ~Streams() { posix_spawn_file_actions_destroy(&actions); }
    Streams(Streams const&) = delete;
    Streams& operator=(Streams const&) = delete;

    posix_spawn_file_actions_t actions;
};

std::string failure(char const* what, int number) {
    return std::string("cannot ") + what + ": " + std::strerror(number);
}

} // namespace

Encoder::~Encoder() {
    Abandon();
    if (process > 0) waitpid(process, nullptr, 0);
    if (pipe >= 0) close(pipe);
    if (errors >= 0) close(errors);
}

std::string Encoder::Start(EncoderTask task) {
    std::lock_guard const lock(guard);
    file.emplace(task.file);
    if (!file->Error().empty()) return file->Error();
    task.file = file->TemporaryPath();
    return Spawn(encoder_command(task));
}

std::string Encoder::Spawn(std::vector<std::string> const& command) {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) return failure("make a pipe", errno);
    fcntl(ends[1], F_SETPIPE_SZ, pipe_size); // fewer switches; where it is refused, the usual size does
    pipe = ends[1];
    errors = memfd_create("errors", MFD_CLOEXEC);
    std::vector<char*> argv;
    for (std::string const& word : command) argv.push_back(const_cast<char*>(word.c_str()));
    argv.push_back(nullptr);
    Attributes const attributes;
    Streams const streams(ends[0], errors);
    int const error = posix_spawnp(&process, argv[0], &streams.actions, &attributes.attributes, argv.data(), environ);
    close(ends[0]);
    if (error == 0) return "";
    process = -1;
    if (error == ENOENT) return "ffmpeg, which makes films, is not installed; --raw and --y4m do without";
    return failure("start ffmpeg", error);
}

std::string Encoder::Write(std::span<std::uint8_t const> pixels) {
    if (write_all(pipe, pixels.data(), pixels.size())) return "";
    std::string const why = WaitFor();
    return why.empty() ? "ffmpeg ended before the film did" : why;
}

std::string Encoder::Finish() {
    std::string const error = WaitFor();
    if (!error.empty()) return error;
    std::lock_guard const lock(guard);
    return file->Commit() ? "" : file->Error();
}

void Encoder::Abandon() {
    std::lock_guard const lock(guard);
    if (process > 0) kill(process, SIGKILL);
    if (file) file->Drop();
}

std::string Encoder::WaitFor() {
    close(pipe);
    pipe = -1;
    siginfo_t ended;
    waitid(P_PID, static_cast<id_t>(process), &ended, WEXITED | WNOWAIT); // it can be abandoned meanwhile
    std::lock_guard const lock(guard);
    int status = 0;
    pid_t const reaped = waitpid(process, &status, 0);
    process = -1;
    if (reaped < 0) return failure("wait for ffmpeg", errno);
    if (WIFSIGNALED(status)) return "ffmpeg was ended by signal " + std::to_string(WTERMSIG(status));
    if (WEXITSTATUS(status) == 0) return "";
    return "ffmpeg: " + LastWords();
}

std::string Encoder::LastWords() const {
    std::string text(4096, '\0');
    off_t const size = lseek(errors, 0, SEEK_END);
    off_t const from = std::max<off_t>(0, size - static_cast<off_t>(text.size()));
    ssize_t const got = pread(errors, text.data(), text.size(), from);
    text.resize(static_cast<std::size_t>(std::max<ssize_t>(got, 0)));
    while (!text.empty() && (text.back() == '\n' || text.back() == '\r')) text.pop_back();
    auto const line = text.substr(text.find_last_of("\r\n") + 1); // find_last_of: npos + 1 is 0
    return line.empty() ? "it failed and does not say why" : line;
}
