// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <thread>

/// Ends the program in good order when SIGINT, SIGTERM or SIGHUP comes, whatever it is waiting for: a thread receives
/// the signal, tidies up and lets the signal end the process, so that its parent sees why. A signal that the program
/// was started to ignore stays ignored.
class Interrupt {
public:
    /// Blocks the signals in this thread and in those that it starts from now on.
    /// @param tidy_up  called once, in the other thread
    explicit Interrupt(std::function<void()> tidy_up);
    ~Interrupt(); ///< from now on a signal ends the process as it does any other
    Interrupt(Interrupt const&) = delete;
    Interrupt& operator=(Interrupt const&) = delete;

private:
    void Watch();

    std::function<void()> my_tidy_up;
    int signals = -1; ///< to read from: the signals that have come
    int end = -1;     ///< an event: the object goes
    std::thread watcher;
};
