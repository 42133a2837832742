// SPDX-License-Identifier: MIT
#include "runtime/modekeeper.h"

#include "runtime/display.h"

#include <X11/Xlib.h>
#include <X11/extensions/Xrandr.h>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/prctl.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr char all_is_well = 1;
constexpr unsigned int longest = 60; // seconds that a display may take to answer the keeper

/// What one part of the graphics card shows.
struct Mode {
    RRCrtc crtc;
    RRMode mode;
    int x;
    int y;
    Rotation rotation;
    std::vector<RROutput> outputs;
};

std::vector<Mode> modes_of(Display* display) {
    std::vector<Mode> modes;
    XRRScreenResources* const screen = XRRGetScreenResourcesCurrent(display, DefaultRootWindow(display));
    if (!screen) return modes;
    for (int i = 0; i < screen->ncrtc; ++i) {
        XRRCrtcInfo* const info = XRRGetCrtcInfo(display, screen, screen->crtcs[i]);
        if (!info) continue;
        modes.push_back({screen->crtcs[i], info->mode, info->x, info->y, info->rotation,
                         std::vector<RROutput>(info->outputs, info->outputs + info->noutput)});
        XRRFreeCrtcInfo(info);
    }
    XRRFreeScreenResources(screen);
    return modes;
}

int ignore_error(Display*, XErrorEvent*) { return 0; }

int leave(Display*) { _exit(0); }

void restore(std::vector<Mode> const& before) {
    XSetErrorHandler(ignore_error);
    XSetIOErrorHandler(leave);
    Display* const display = XOpenDisplay(nullptr);
    if (!display) return;
    XRRScreenResources* const screen = XRRGetScreenResourcesCurrent(display, DefaultRootWindow(display));
    std::vector<Mode> const now = modes_of(display);
    for (std::size_t i = 0; screen && i < before.size() && i < now.size(); ++i) {
        Mode was = before[i];
        if (was.crtc != now[i].crtc || was.mode == now[i].mode) continue;
        XRRSetCrtcConfig(display, screen, was.crtc, CurrentTime, was.x, was.y, was.mode, was.rotation,
                         was.outputs.data(), static_cast<int>(was.outputs.size()));
    }
    XSync(display, False);
}

/// Signals that are meant for the program, by its name or its group, do not end the keeper.
void become_a_process_apart(int& line) {
    setsid();
    prctl(PR_SET_NAME, "mode-keeper");
    for (int const signal : {SIGHUP, SIGINT, SIGQUIT, SIGTERM, SIGPIPE}) std::signal(signal, SIG_IGN);
    int const nowhere = open("/dev/null", O_RDWR);
    for (int const stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) dup2(nowhere, stream);
    line = dup2(line, STDERR_FILENO + 1);
    close_range(static_cast<unsigned int>(line) + 1, ~0U, 0);
}

[[noreturn]] void keep(int line, std::vector<Mode> const& before) {
    become_a_process_apart(line);
    char word = 0;
    ssize_t got = 0;
    while ((got = read(line, &word, 1)) < 0 && errno == EINTR) {
    }
    if (got == 1) _exit(0);
    alarm(longest);
    restore(before);
    _exit(0);
}

} // namespace

ModeKeeper::ModeKeeper() {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) return;
    std::vector<Mode> const before = modes_of(display_connection());
    pid_t const child = fork();
    if (child == 0) {
        close(ends[1]);
        keep(ends[0], before);
    }
    close(ends[0]);
    line = ends[1];
}

ModeKeeper::~ModeKeeper() {
    if (line < 0) return;
    [[maybe_unused]] ssize_t const told = write(line, &all_is_well, 1);
    close(line);
}
