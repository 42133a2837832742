#include "kore/sounddevice.h"

#include <AL/alc.h>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace kore {

namespace {

/// Discards standard error during its lifetime.
class QuietStandardError {
public:
    QuietStandardError() : saved(fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 0)) {
        std::fflush(stderr);
        int const nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
        if (saved >= 0 && nowhere >= 0) dup2(nowhere, STDERR_FILENO);
        if (nowhere >= 0) close(nowhere);
    }
    ~QuietStandardError() {
        if (saved < 0) return;
        std::fflush(stderr);
        dup2(saved, STDERR_FILENO);
        close(saved);
    }
    QuietStandardError(QuietStandardError const&) = delete;
    QuietStandardError& operator=(QuietStandardError const&) = delete;

private:
    int saved;
};

} // namespace

bool sound_device_available() {
    QuietStandardError const quiet;
    ALCdevice* const device = alcOpenDevice(nullptr);
    if (!device) return false;
    alcCloseDevice(device);
    return true;
}

} // namespace kore
