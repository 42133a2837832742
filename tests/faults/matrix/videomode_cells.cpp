// SPDX-License-Identifier: MIT
// The desktop's video mode, after the show has switched it and ended in every way there is.

#include "tests/faults/matrix/commands.h"
#include "tests/window/xscreen.h"

#include <csignal>
#include <thread>

namespace faults {

namespace {

constexpr char const* desktop_mode = "1280x1024";

struct Way {
    char const* name;
    void (*act)(XScreen const& screen, Process const& show);
    int status;
};

template<int number>
void send(XScreen const&, Process const& show) {
    show.Signal(number);
}

// clang-format off
constexpr Way ways[] = {
    {"Escape",         [](XScreen const& screen, Process const&) { screen.Press("Escape"); }, 0},
    {"close button",   [](XScreen const& screen, Process const&) { screen.AskToClose(); }, 0},
    {"HUP",            send<SIGHUP>, 0},
    {"INT",            send<SIGINT>, 0},
    {"QUIT",           send<SIGQUIT>, 0},
    {"TERM",           send<SIGTERM>, 0},
    {"TERM twice",     [](XScreen const&, Process const& show) { show.Signal(SIGTERM); show.Signal(SIGTERM); }, -1},
    {"KILL",           send<SIGKILL>, 128 + SIGKILL},
    {"ABRT",           send<SIGABRT>, 128 + SIGABRT},
    {"SEGV",           send<SIGSEGV>, 128 + SIGSEGV},
    {"BUS",            send<SIGBUS>, 128 + SIGBUS},
    {"FPE",            send<SIGFPE>, 128 + SIGFPE},
    {"ILL",            send<SIGILL>, 128 + SIGILL},
    {"TRAP",           send<SIGTRAP>, 128 + SIGTRAP},
    {"SYS",            send<SIGSYS>, 128 + SIGSYS},
    {"USR1",           send<SIGUSR1>, 128 + SIGUSR1},
    {"VTALRM",         send<SIGVTALRM>, 128 + SIGVTALRM},
    {"XCPU",           send<SIGXCPU>, 128 + SIGXCPU},
};
// clang-format on

XScreen& switched_screen() {
    static XScreen screen(XScreen::Switched{desktop_mode});
    return screen;
}

std::string mode_of(XScreen const& screen) {
    Process list({"xrandr", "--current"}, {"DISPLAY=" + screen.Name()});
    if (list.Wait(patience) != 0) return "none: " + list.Error();
    std::string const text = list.Output(); // the line of the mode that is in use has a star
    auto const star = text.find('*');
    auto const line = star == std::string::npos ? star : text.rfind('\n', star);
    if (line == std::string::npos) return "none";
    auto const start = text.find_first_not_of(" \n", line);
    return text.substr(start, text.find(' ', start) - start);
}

/// Waits for a mode: it is given back when the program may have ended already.
bool comes_to(XScreen const& screen, std::string const& mode) {
    auto const until = std::chrono::steady_clock::now() + patience;
    while (mode_of(screen) != mode) {
        if (std::chrono::steady_clock::now() > until) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    return true;
}

std::string fail(Way const& way, std::vector<std::string> const& environment) {
    XScreen& screen = switched_screen();
    if (mode_of(screen) != desktop_mode) screen.Randr({"--output", "DUMMY0", "--mode", desktop_mode});
    std::vector<std::string> changes = environment;
    changes.push_back("DISPLAY=" + screen.Name());
    Process process({show, "-width", "640", "-nofsaa", "-mute", "-novsync", "-limit", "5"}, changes);
    if (!screen.FindShow()) return "no picture: " + shown(process.Error());
    if (!comes_to(screen, "640x480")) return "the mode is not switched: " + mode_of(screen);
    Watch const watch;
    way.act(screen, process);
    auto const status = process.Wait(patience);
    if (!status) return "does not end";
    if (way.status >= 0 && *status != way.status) return "status " + std::to_string(*status);
    if (!comes_to(screen, desktop_mode)) return "the screen is left at " + mode_of(screen);
    return watch.Complaint("the screen is given back");
}

} // namespace

std::vector<Cell> videomode_cells() {
    std::vector<Cell> cells;
    for (Way const& way : ways) {
        cells.push_back({way.name, [&way] { return fail(way, {}); }});
    }
    return cells;
}

} // namespace faults
