// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <thread>

namespace faults {

/// A server on a socket of this machine that takes connections, and answers what somebody says with the same words
/// each time.
class SilentServer {
public:
    /// @param path    of the socket
    /// @param answer  to the first words; "" for none
    /// @param hang_up whether it closes a connection after them
    explicit SilentServer(std::string path, std::string answer = "", bool hang_up = false);
    ~SilentServer();
    SilentServer(SilentServer const&) = delete;
    SilentServer& operator=(SilentServer const&) = delete;

    std::string const& Path() const { return my_path; }

private:
    void Answer() const;

    std::string my_path;
    std::string my_answer;
    bool my_hang_up;
    int listener = -1;
    std::thread answering;
};

} // namespace faults
