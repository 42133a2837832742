// SPDX-License-Identifier: MIT
#include "tests/faults/matrix/commands.h"

#include "tests/support/command.h"
#include "tests/window/playing.h"

#include <algorithm>
#include <csignal>
#include <memory>
#include <thread>
#include <utility>

namespace faults {

namespace {

XScreen& own_screen() {
    static XScreen screen;
    return screen;
}

bool moves_in_time(XScreen const& screen) {
    auto const until = std::chrono::steady_clock::now() + patience;
    while (!window::moves(screen)) {
        if (std::chrono::steady_clock::now() > until) return false;
    }
    return true;
}

/// The command in a shell that does what comes before, and then becomes the program.
std::vector<std::string> with_shell(Command const& command) {
    if (command.before.empty()) return command.arguments;
    std::vector<std::string> arguments = {"/bin/sh", "-c", command.before + "; exec \"$@\"", "sh"};
    arguments.insert(arguments.end(), command.arguments.begin(), command.arguments.end());
    return arguments;
}

std::string what_was_said(std::string const& error, int lines, bool exactly, std::string const& says) {
    int const count = lines_of(error);
    if (exactly ? count != lines : count > lines) {
        return std::to_string(count) + " lines instead of " + std::to_string(lines) + ": " + shown(error);
    }
    if (error.find(says) == std::string::npos) return "says " + shown(error) + " instead of " + says;
    return "";
}

} // namespace

std::string Watch::Complaint(char const* what, std::chrono::milliseconds within) const {
    auto const took = std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - start);
    return took <= within ? "" : std::string(late) + what + " after " + std::to_string(took.count()) + " ms";
}

std::string program(std::string const& name) { return HARDSILENCE_BINARY_DIR "/" + name; }

Words joined(Words first, Words const& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

Words bad_library(std::string const& call, std::string const& way) {
    // LD_PRELOAD is split at spaces, which the folder may have; that of the folders is not.
    return {"LD_PRELOAD=" HARDSILENCE_BAD_LIBRARY, "LD_LIBRARY_PATH=" HARDSILENCE_BAD_LIBRARY_FOLDER,
            "BAD_CALL=" + call, "BAD_WAY=" + way};
}

int lines_of(std::string const& text) {
    auto const ends = std::count(text.begin(), text.end(), '\n');
    return static_cast<int>(ends) + (!text.empty() && text.back() != '\n' ? 1 : 0);
}

std::string shown(std::string const& text) {
    constexpr std::size_t most = 600;
    std::string line = text.substr(0, most);
    std::replace(line.begin(), line.end(), '\n', '|');
    return "\"" + line + (text.size() > most ? "...\"" : "\"");
}

std::string own_display() { return own_screen().Name(); }

std::string end_complaint(Command const& command, End const& end) {
    Watch const watch;
    support::Outcome const outcome = support::run(
        with_shell(command),
        {.folder = command.folder, .environment = command.environment, .limit = std::max(end.within, patience)});
    std::string const too_late = watch.Complaint("it ends", end.within);
    int const status = outcome.signal ? 128 + outcome.signal : outcome.status;
    if (outcome.signal == SIGKILL && std::count(end.status.begin(), end.status.end(), status) == 0) {
        return "did not end in time: " + shown(outcome.error);
    }
    if (std::count(end.status.begin(), end.status.end(), status) == 0) {
        return "status " + std::to_string(status) + ": " + shown(outcome.error);
    }
    if (end.prints && outcome.output != *end.prints) return "prints " + shown(outcome.output);
    std::string const complaint = what_was_said(outcome.error, end.lines, true, end.says);
    return complaint.empty() ? too_late : complaint;
}

std::string play_complaint(Command command, Play const& play) {
    command.environment.push_back("DISPLAY=" + own_display());
    Watch const start;
    Process process(with_shell(command), command.environment, command.folder);
    bool const found = own_screen().FindShow() || own_screen().FindShow(); // which waits ten seconds
    if (!found) return "no picture: " + shown(process.Error());
    std::string too_late = start.Complaint("the window is there");
    std::this_thread::sleep_for(play.time);
    if (!process.Running()) return "ended: " + shown(process.Error());
    if (!moves_in_time(own_screen())) return "the picture stands: " + shown(process.Error());
    Watch const end;
    process.Signal(play.signal);
    auto const status = process.Wait(patience);
    too_late += end.Complaint("it ends");
    if (!status) return "does not end: " + shown(process.Error());
    if (*status != play.status) return "status " + std::to_string(*status) + ": " + shown(process.Error());
    if (process.Output().find(play.prints) == std::string::npos) return "prints " + shown(process.Output());
    std::string const complaint = what_was_said(process.Error(), play.most_lines, false, play.says);
    return complaint.empty() ? too_late : complaint;
}

Cell ends(std::string name, Command command, End end) {
    return {std::move(name),
            [command = std::move(command), end = std::move(end)] { return end_complaint(command, end); }};
}

Cell plays(std::string name, Command command, Play play) {
    return {std::move(name),
            [command = std::move(command), play = std::move(play)] { return play_complaint(command, play); }};
}

std::vector<std::string> small_show(std::vector<std::string> const& more) {
    std::vector<std::string> arguments = {show, "-w", "-width", "64", "-nofsaa", "-novsync", "-limit", "20"};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return arguments;
}

} // namespace faults
