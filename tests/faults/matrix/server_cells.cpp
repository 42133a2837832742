// SPDX-License-Identifier: MIT
// X servers that die, stop or never answer.

#include "tests/faults/matrix/commands.h"
#include "tests/faults/matrix/silentserver.h"
#include "tests/support/process.h"

#include <csignal>
#include <cstring>
#include <filesystem>
#include <thread>

namespace faults {

namespace {

using std::chrono::milliseconds;

/// An X server that is started and ended for one cell.
class Server {
public:
    Server() : process({"Xvfb", "-displayfd", "1", "-nolisten", "tcp", "-screen", "0", "320x240x24"}) {
        for (int i = 0; i < 1000 && process.Output().find('\n') == std::string::npos; ++i) {
            std::this_thread::sleep_for(milliseconds(10));
        }
        display = "DISPLAY=:" + process.Output().substr(0, process.Output().find('\n'));
    }
    ~Server() {
        process.Signal(SIGCONT);
        process.Signal(SIGTERM);
        process.Wait(milliseconds(2000));
    }
    Server(Server const&) = delete;
    Server& operator=(Server const&) = delete;

    Process process;
    std::string display;
};

/// What the window library may say of a display that is well.
constexpr char const* note = "Setting vertical sync not supported\n";

std::string ends_with_a_line(Process& show, std::string const& says) {
    Watch const watch;
    auto const status = show.Wait(time_for_an_answer + patience);
    std::string const too_late = watch.Complaint("it ends", time_for_an_answer + at_once);
    std::string error = show.Error();
    if (!status) return "does not end: " + shown(error);
    if (*status != 1) return "status " + std::to_string(*status) + ": " + shown(error);
    if (error.rfind(note, 0) == 0) error.erase(0, std::strlen(note));
    if (lines_of(error) != 1) return shown(error);
    return error.find(says) == std::string::npos ? "says " + shown(error) : too_late;
}

std::string dies_after(milliseconds time, std::vector<std::string> const& environment) {
    Server const server;
    std::vector<std::string> changes = environment;
    changes.push_back(server.display);
    Process process(small_show(), changes);
    std::this_thread::sleep_for(time);
    server.process.Signal(SIGKILL);
    return ends_with_a_line(process, "isplay");
}

std::string stops_after(milliseconds time, int signal) {
    Server const server;
    Process process(small_show(), {server.display});
    std::this_thread::sleep_for(time);
    server.process.Signal(SIGSTOP);
    std::this_thread::sleep_for(milliseconds(300));
    Watch const watch;
    process.Signal(signal);
    auto const status = process.Wait(patience);
    std::string const too_late = watch.Complaint("it ends");
    if (!status) return "does not end";
    // Before the signals are caught they end the program as they end any other.
    return *status == 0 || *status == 128 + signal ? too_late
                                                   : "status " + std::to_string(*status) + shown(process.Error());
}

/// Where a server of this number has its socket.
std::string socket_of(int number) {
    std::filesystem::create_directory("/tmp/.X11-unix");
    return "/tmp/.X11-unix/X" + std::to_string(number);
}

struct Stranger {
    char const* name;
    std::string answer;
    bool hangs_up;
    char const* says;
};

std::vector<Stranger> const strangers = {
    {"never answers", "", false, "The display does not answer."},
    {"hangs up", "", true, "Cannot open the display."},
    {"speaks another language", std::string(4096, 'x'), false, "isplay"},
    {"answers with noughts", std::string(4096, '\0'), false, "isplay"},
    {"refuses", std::string("\0\4\13\0\0\0\1\0none", 12), false, "Cannot open the display."},
};

void add_strangers(std::vector<Cell>& cells) {
    int number = 900;
    for (Stranger const& stranger : strangers) {
        for (std::string const setting : {"HARDSILENCE_DESKTOP", "HARDSILENCE_DESKTOP=1", "HARDSILENCE_MONITOR=list"}) {
            ++number;
            cells.push_back({stranger.name + (", " + setting), [&stranger, setting, number] {
                                 SilentServer const server(socket_of(number), stranger.answer, stranger.hangs_up);
                                 Process process(small_show(), {"DISPLAY=:" + std::to_string(number), setting});
                                 return ends_with_a_line(process, stranger.says);
                             }});
        }
    }
}

} // namespace

std::vector<Cell> server_cells() {
    std::vector<Cell> cells;
    for (int ms = 0; ms <= 200; ms += ms < 40 ? 2 : 20) {
        for (std::string const setting : {"HARDSILENCE_DESKTOP", "HARDSILENCE_DESKTOP=1"}) {
            cells.push_back({"dies after " + std::to_string(ms) + " ms, " + setting,
                             [ms, setting] { return dies_after(milliseconds(ms), {setting}); }});
        }
    }
    for (int const ms : {0, 10, 20, 30, 50, 80, 120, 400}) {
        for (int const signal : {SIGHUP, SIGINT, SIGQUIT, SIGTERM}) {
            cells.push_back({"stops after " + std::to_string(ms) + " ms, then " + sigabbrev_np(signal),
                             [ms, signal] { return stops_after(milliseconds(ms), signal); }});
        }
    }
    add_strangers(cells);
    return cells;
}

} // namespace faults
