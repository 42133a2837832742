// SPDX-License-Identifier: MIT
#include "runtime/stopsignal.h"

#include "runtime/deadline.h"

#include <csignal>
#include <initializer_list>

namespace {

volatile std::sig_atomic_t stop = 0;

extern "C" void request_stop(int) {
    stop = 1;
    deadline::set_for_the_end();
}

bool is_ignored(int signal) {
    struct sigaction action {};
    sigaction(signal, nullptr, &action);
    return action.sa_handler == SIG_IGN;
}

} // namespace

void catch_stop_signals() {
    struct sigaction action {};
    action.sa_handler = request_stop;
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    sigemptyset(&action.sa_mask);
    for (int const signal : {SIGINT, SIGQUIT, SIGTERM}) sigaction(signal, &action, nullptr);
    if (!is_ignored(SIGHUP)) sigaction(SIGHUP, &action, nullptr);
}

bool stop_requested() { return stop != 0; }
