#include "tools/files/streams.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <iostream>
#include <system_error>
#include <unistd.h>

void prepare_streams() {
    for (int const stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(stream, F_GETFD) >= 0) continue;
        if (open("/dev/null", O_RDWR) < 0) return; // the lowest number that is free
    }
    static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
}

int finish_output(char const* name, int status) {
    errno = 0;
    bool const flushed = std::fflush(stdout) == 0; // std::cout writes through it
    if (flushed && std::cout.good() && !std::ferror(stdout)) return status;
    std::string const reason = errno != 0 ? ": " + std::generic_category().message(errno) : "";
    if (status == 0) std::cerr << name << ": cannot write to standard output" << reason << std::endl;
    return 1;
}
