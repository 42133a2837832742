// SPDX-License-Identifier: MIT
#include "tests/faults/matrix/matrix.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <fcntl.h>
#include <iostream>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace faults {

namespace {

constexpr int chances = 3; // of a cell that is late, by itself

struct Pipe {
    Pipe() {
        if (pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
    }
    std::array<int, 2> ends{};
};

/// An answer is a record of this size, so that those of several workers stay apart.
struct Answer {
    int cell;
    char complaint[PIPE_BUF - sizeof(int)];
};

std::string tried(Cell const& cell) {
    try {
        return cell.fail();
    } catch (std::exception const& error) {
        return std::string("not tried: ") + error.what();
    }
}

[[noreturn]] void work(std::vector<Cell> const& cells, int orders, int answers) {
    int next = 0;
    while (read(orders, &next, sizeof next) == sizeof next) {
        Answer answer{};
        answer.cell = next;
        std::string const complaint = tried(cells[static_cast<std::size_t>(next)]);
        std::strncpy(answer.complaint, complaint.c_str(), sizeof answer.complaint - 1);
        if (write(answers, &answer, sizeof answer) != sizeof answer) break;
    }
    std::exit(0); // what the worker holds, such as an X server, goes with it
}

bool read_answer(int from, Answer& answer) {
    auto* const bytes = reinterpret_cast<char*>(&answer);
    for (std::size_t filled = 0; filled < sizeof answer;) {
        ssize_t const got = read(from, bytes + filled, sizeof answer - filled);
        if (got <= 0) return false;
        filled += static_cast<std::size_t>(got);
    }
    return true;
}

std::vector<std::string> try_side_by_side(std::vector<Cell> const& cells, int workers) {
    constexpr std::size_t most = 65536 / sizeof(int); // that a pipe holds
    if (cells.size() > most) throw std::runtime_error("too many cells");
    Pipe const orders;
    Pipe const answers;
    for (int i = 0; i < static_cast<int>(cells.size()); ++i) {
        if (write(orders.ends[1], &i, sizeof i) != sizeof i) throw std::runtime_error("no orders");
    }
    close(orders.ends[1]);
    std::cout.flush(); // or each worker would write the rest of it again
    std::fflush(nullptr);
    std::vector<pid_t> children;
    for (int i = 0; i < std::min(workers, static_cast<int>(cells.size())); ++i) {
        pid_t const child = fork();
        if (child == 0) {
            close(answers.ends[0]);
            work(cells, orders.ends[0], answers.ends[1]);
        }
        children.push_back(child);
    }
    close(orders.ends[0]);
    close(answers.ends[1]);
    std::vector<std::string> complaints(cells.size(), "not tried: its worker ended");
    for (Answer answer{}; read_answer(answers.ends[0], answer);) {
        complaints[static_cast<std::size_t>(answer.cell)] = answer.complaint;
    }
    close(answers.ends[0]);
    for (pid_t const child : children) waitpid(child, nullptr, 0);
    return complaints;
}

} // namespace

std::vector<std::string> try_cells(std::vector<Cell> const& cells, int workers) {
    std::vector<std::string> complaints = try_side_by_side(cells, workers);
    for (std::size_t i = 0; i < cells.size(); ++i) {
        for (int again = 0; again < chances && complaints[i].starts_with(late); ++again) {
            complaints[i] = try_side_by_side({cells[i]}, 1)[0];
        }
    }
    return complaints;
}

} // namespace faults
