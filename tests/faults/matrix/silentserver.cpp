// SPDX-License-Identifier: MIT
#include "tests/faults/matrix/silentserver.h"

#include <array>
#include <stdexcept>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace faults {

SilentServer::SilentServer(std::string path, std::string answer, bool hang_up)
    : my_path(std::move(path)), my_answer(std::move(answer)), my_hang_up(hang_up) {
    unlink(my_path.c_str());
    listener = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    my_path.copy(address.sun_path, sizeof address.sun_path - 1);
    if (bind(listener, reinterpret_cast<sockaddr const*>(&address), sizeof address) != 0 || listen(listener, 5) != 0) {
        throw std::runtime_error("no socket at " + my_path);
    }
    answering = std::thread([this] { Answer(); });
}

SilentServer::~SilentServer() {
    shutdown(listener, SHUT_RDWR); // ends the wait for a connection
    answering.join();
    close(listener);
    unlink(my_path.c_str());
}

void SilentServer::Answer() const {
    std::vector<int> connections;
    for (int one = 0; (one = accept4(listener, nullptr, nullptr, SOCK_CLOEXEC)) >= 0;) {
        std::array<char, 64> words{};
        bool const heard = (my_hang_up || !my_answer.empty()) && read(one, words.data(), words.size()) > 0;
        if (heard) send(one, my_answer.data(), my_answer.size(), MSG_NOSIGNAL);
        if (my_hang_up) {
            close(one);
        } else {
            connections.push_back(one);
        }
    }
    for (int const one : connections) close(one);
}

} // namespace faults
