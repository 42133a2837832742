// SPDX-License-Identifier: MIT
#include "tools/film/interrupt.h"

#include <csignal>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/signalfd.h>
#include <unistd.h>

namespace {

sigset_t stop_signals() {
    sigset_t set;
    sigemptyset(&set);
    for (int const number : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction now {};
        if (sigaction(number, nullptr, &now) == 0 && now.sa_handler != SIG_IGN) sigaddset(&set, number);
    }
    return set;
}

/// Ends the process by a signal, as if it had never been caught.
void die_of(int number) {
    static_cast<void>(std::signal(number, SIG_DFL));
    sigset_t const set = stop_signals();
    kill(getpid(), number);
    pthread_sigmask(SIG_UNBLOCK, &set, nullptr);
}

} // namespace

Interrupt::Interrupt(std::function<void()> tidy_up) : my_tidy_up(std::move(tidy_up)) {
    sigset_t const set = stop_signals();
    pthread_sigmask(SIG_BLOCK, &set, nullptr);
    signals = signalfd(-1, &set, SFD_CLOEXEC);
    end = eventfd(0, EFD_CLOEXEC);
    watcher = std::thread([this] { Watch(); });
}

Interrupt::~Interrupt() {
    eventfd_write(end, 1);
    watcher.join();
    close(signals);
    close(end);
    sigset_t const set = stop_signals();
    pthread_sigmask(SIG_UNBLOCK, &set, nullptr);
}

void Interrupt::Watch() {
    pollfd waited[] = {{signals, POLLIN, 0}, {end, POLLIN, 0}};
    while (poll(waited, 2, -1) < 0) {
    }
    signalfd_siginfo info{};
    if (waited[1].revents || read(signals, &info, sizeof info) != sizeof info) return;
    my_tidy_up();
    die_of(static_cast<int>(info.ssi_signo));
}
