// SPDX-License-Identifier: MIT
#include "runtime/resources.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <fcntl.h>
#include <iostream>
#include <sys/mman.h>
#include <sys/resource.h>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

constexpr rlim_t usual_files = 256;
constexpr std::size_t files = 32;                   ///< besides those that are open
constexpr std::size_t address_space = 1024U << 20U; ///< bytes, besides what is in use
constexpr std::size_t data = 256U << 20U;           ///< bytes of it that are written to
constexpr rlim_t stack = 1024U << 10U;              ///< bytes, of each thread
constexpr unsigned int threads = 16;                ///< besides the drawing ones, of which there is one a core
constexpr unsigned int most_drawing = 32;

void raise_limit_of_files() {
    rlimit limit{};
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0 || limit.rlim_cur >= usual_files) return;
    limit.rlim_cur = std::min(usual_files, limit.rlim_max);
    setrlimit(RLIMIT_NOFILE, &limit);
}

bool can_open_files() {
    std::array<int, files> opened{};
    for (int& file : opened) file = fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, 0);
    for (int const file : opened) close(file);
    return opened.back() >= 0;
}

bool can_map(std::size_t bytes, int protection) {
    void* const place = mmap(nullptr, bytes, protection, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    return place != MAP_FAILED && munmap(place, bytes) == 0;
}

bool has_stack() {
    rlimit limit{};
    return getrlimit(RLIMIT_STACK, &limit) != 0 || limit.rlim_cur >= stack;
}

bool can_have_threads() {
    std::atomic<bool> let_go = false;
    std::vector<std::thread> started;
    unsigned int const wanted = threads + std::min(most_drawing, std::thread::hardware_concurrency());
    try {
        while (started.size() < wanted) started.emplace_back([&let_go] { let_go.wait(false); });
    } catch (std::system_error const&) {
    } // one thread less than asked for is told below
    let_go = true;
    let_go.notify_all();
    bool const enough = started.size() == wanted;
    for (std::thread& thread : started) thread.join();
    return enough;
}

struct Need {
    bool (*met)();
    char const* line;
};

constexpr Need needs[] = {
    {can_open_files, "The show needs 32 files more than may be open here; see ulimit -n."},
    {[] { return can_map(address_space, PROT_NONE); }, "The show needs 1 GiB of memory; see ulimit -v."},
    {[] { return can_map(data, PROT_READ | PROT_WRITE); }, "The show needs 256 MiB of memory; see ulimit -d."},
    {has_stack, "The show needs a stack of 1 MiB; see ulimit -s."},
    {can_have_threads, "The show needs more threads than it may have here; see ulimit -u."},
};

} // namespace

bool enough_resources() {
    raise_limit_of_files();
    for (Need const& need : needs) {
        if (need.met()) continue;
        std::cerr << need.line << std::endl;
        return false;
    }
    return true;
}
