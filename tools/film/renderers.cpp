// SPDX-License-Identifier: MIT
#include "tools/film/renderers.h"

#include "tools/files/streams.h"
#include "tools/film/descriptors.h"
#include "tools/film/renderer.h"
#include "tools/record/options.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <type_traits>
#include <unistd.h>

namespace {

constexpr std::size_t places = 3; // pictures that a process draws ahead

bool refused(char const* what) {
    complain(std::string("cannot ") + what + ": " + std::strerror(errno));
    return false;
}

} // namespace

Renderers::~Renderers() {
    // With its pipes closed a process ends after the picture that it is at.
    for (Job& job : running) {
        close(job.ready);
        close(job.free);
    }
    for (Job const& job : running) {
        if (job.process > 0) waitpid(job.process, nullptr, 0);
    }
    if (memory) munmap(memory, memory_size);
}

bool Renderers::MapMemory(std::size_t bytes) {
    void* const mapped = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (mapped == MAP_FAILED) return refused("get the memory for pictures");
    memory = static_cast<std::uint8_t*>(mapped);
    memory_size = bytes;
    return true;
}

std::uint8_t* Renderers::Place(std::size_t job, std::size_t picture) const {
    return memory + (job * places + picture % places) * picture_size;
}

bool Renderers::Start(RenderTask const& task, unsigned int jobs) {
    picture_size = task.shape.Bytes();
    if (!MapMemory(picture_size * places * jobs)) return false;
    for (unsigned int number = 0; number < jobs; ++number) {
        if (!StartJob(task, number, jobs)) return false;
    }
    return true;
}

bool Renderers::StartJob(RenderTask const& task, unsigned int number, unsigned int jobs) {
    int ready[2];
    int free[2];
    if (pipe2(ready, O_CLOEXEC) != 0 || pipe2(free, O_CLOEXEC) != 0) return refused("make a pipe");
    pid_t const process = fork();
    if (process < 0) return refused("start a process");
    if (process == 0) {
        // Each has only its own ends, so that a pipe ends with the process at its other end.
        close(ready[0]);
        close(free[1]);
        for (Job const& other : running) {
            close(other.ready);
            close(other.free);
        }
        std::signal(SIGINT, SIG_IGN); // of the terminal; the process that started it decides
        RenderShare const share{number, jobs, places, ready[1], free[0], Place(number, 0)};
        std::exit(run_tool(recorder_name, [&] { return render(task, share); }));
    }
    close(ready[1]);
    close(free[0]);
    running.push_back({process, ready[0], free[1]});
    for (std::size_t place = 0; place < places; ++place) write_all(free[1], "+", 1);
    return true;
}

std::optional<FilmPlan> Renderers::Plan() {
    static_assert(std::is_trivially_copyable_v<FilmPlan>); // it goes through a pipe
    FilmPlan plan;
    if (read_all(running[0].ready, &plan, sizeof plan)) return plan;
    return std::nullopt;
}

std::span<std::uint8_t const> Renderers::Next() {
    if (lent) write_all(running[*lent].free, "+", 1); // where the process has ended, the next read tells
    lent = current;
    Job& job = running[current];
    char token = 0;
    if (!read_all(job.ready, &token, 1)) return {};
    current = (current + 1) % running.size();
    return {Place(*lent, job.seen++), picture_size};
}

int Renderers::FailedStatus() {
    Job& job = running[lent.value_or(0)];
    int status = 0;
    if (job.process <= 0 || waitpid(job.process, &status, 0) != job.process) return 1;
    job.process = -1;
    if (WIFEXITED(status)) return std::max(WEXITSTATUS(status), 1);
    int const number = WTERMSIG(status);
    // A failed assertion has told of itself.
    if (number != SIGABRT) complain("a process that draws was ended by signal " + std::to_string(number));
    return 128 + number;
}

void Renderers::Kill() {
    for (Job const& job : running) {
        if (job.process > 0) kill(job.process, SIGKILL);
    }
}
