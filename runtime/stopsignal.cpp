#include "runtime/stopsignal.h"

#include <csignal>

namespace {

volatile std::sig_atomic_t stop = 0;

extern "C" void request_stop(int) { stop = 1; }

} // namespace

void catch_stop_signals() {
    struct sigaction action {};
    action.sa_handler = request_stop;
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    sigemptyset(&action.sa_mask);
    sigaction(SIGINT, &action, nullptr);
    sigaction(SIGTERM, &action, nullptr);
}

bool stop_requested() { return stop != 0; }
