// SPDX-License-Identifier: MIT
#include "tools/film/progress.h"

#include <cmath>
#include <cstdio>
#include <unistd.h>

namespace {

constexpr int bar_width = 24; // characters
constexpr std::chrono::milliseconds between{200};

/// "1:05:07" or "5:07".
std::string duration(long seconds) {
    char text[32];
    long const hours = seconds / 3600;
    long const minutes = seconds / 60 % 60;
    if (hours > 0)
        std::snprintf(text, sizeof text, "%ld:%02ld:%02ld", hours, minutes, seconds % 60);
    else
        std::snprintf(text, sizeof text, "%ld:%02ld", minutes, seconds % 60);
    return text;
}

} // namespace

std::string progress_line(int done, int all, double seconds) {
    auto const filled = static_cast<std::size_t>(1LL * bar_width * done / all);
    std::string line = "[" + std::string(filled, '#') + std::string(bar_width - filled, '.') + "] " +
                       std::to_string(done) + " of " + std::to_string(all) + " frames";
    if (done == 0 || seconds <= 0) return line;
    double const rate = done / seconds;
    char text[32];
    std::snprintf(text, sizeof text, ", %.1f a second", rate);
    return line + text + ", " + duration(std::lround((all - done) / rate)) + " left";
}

Progress::Progress(int all) : my_all(all), terminal(isatty(STDERR_FILENO) != 0) {}

void Progress::Show(int done) {
    auto const now = Clock::now();
    if (!terminal || (done < my_all && now - last < between)) return;
    last = now;
    shown = true;
    double const seconds = std::chrono::duration<double>(now - start).count();
    std::fprintf(stderr, "\r%s\033[K", progress_line(done, my_all, seconds).c_str()); // and clears the line's rest
}

void Progress::End() {
    if (shown) std::fputc('\n', stderr);
    shown = false;
}
