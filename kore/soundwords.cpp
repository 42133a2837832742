// SPDX-License-Identifier: MIT
#include "kore/soundwords.h"

#include <array>
#include <atomic>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <poll.h>
#include <unistd.h>

namespace kore {

namespace {

std::atomic<int> lines_left = 0;

void take_alsa_words(char const*, int, char const*, int, char const* format, ...) { // NOLINT(cert-dcl50-cpp)
    if (lines_left.fetch_sub(1) <= 0) {
        lines_left = 0;
        return;
    }
    std::array<char, 200> words{};
    va_list values;
    va_start(values, format);
    std::vsnprintf(words.data(), words.size(), format, values);
    va_end(values);
    pollfd room{STDERR_FILENO, POLLOUT, 0}; // nobody may read it
    if (poll(&room, 1, 0) == 1) dprintf(STDERR_FILENO, "The sound device fails: %s\n", words.data());
}

/// OpenAL will load the library where it is installed.
void take_words_of_alsa() {
    void* const library = dlopen("libasound.so.2", RTLD_LAZY); // never closed: the words are ours until the end
    if (!library) return;
    using Setter = int (*)(decltype(&take_alsa_words));
    auto* const set = reinterpret_cast<Setter>(dlsym(library, "snd_lib_error_set_handler")); // NOLINT
    if (set) set(take_alsa_words);
}

} // namespace

void silence_sound_libraries() {
    setenv("ALSOFT_LOGLEVEL", "0", 0);
    take_words_of_alsa();
}

void let_sound_say_a_line() { lines_left = 1; }

} // namespace kore
