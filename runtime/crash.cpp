// SPDX-License-Identifier: MIT
#include "runtime/crash.h"

#include "runtime/display.h"
#include "runtime/streams.h"

#include <array>
#include <csignal>
#include <unistd.h>

namespace {

constexpr std::array<int, 5> crashes = {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT};

std::array<char, 65536> own_stack;       ///< a crash may be one for want of stack
std::array<struct sigaction, 65> before; // by signal
volatile std::sig_atomic_t driver_is_asked = 0;

extern "C" void look_into_crash(int signal, siginfo_t* info, void*) {
    if (display_is_lost()) {
        write_error_line(display_lost_line);
        _exit(1);
    }
    if (driver_is_asked) {
        write_error_line("This display's OpenGL driver fails: it crashed.\n");
        _exit(1);
    }
    // What crashed does so again on return, and ends by it; what was sent is sent again.
    sigaction(signal, &before[static_cast<std::size_t>(signal)], nullptr);
    if (info->si_code <= 0) raise(signal);
}

} // namespace

void tell_a_lost_display_from_a_crash() {
    stack_t stack{};
    stack.ss_sp = own_stack.data();
    stack.ss_size = own_stack.size();
    sigaltstack(&stack, nullptr);
    struct sigaction action {};
    action.sa_sigaction = look_into_crash;
    action.sa_flags = SA_ONSTACK | SA_SIGINFO;
    sigemptyset(&action.sa_mask);
    for (int const signal : crashes) sigaction(signal, &action, &before[static_cast<std::size_t>(signal)]);
}

DriverIsAsked::DriverIsAsked() { driver_is_asked = 1; }

DriverIsAsked::~DriverIsAsked() { driver_is_asked = 0; }
