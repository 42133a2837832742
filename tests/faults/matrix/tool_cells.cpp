// SPDX-License-Identifier: MIT
// The tools' options, drivers and resources.

#include "tests/faults/matrix/toolbox.h"
#include "tests/support/command.h"

#include <csignal>

namespace faults {

namespace {

using Words = std::vector<std::string>;

std::string joined(Words const& words) {
    std::string text;
    for (std::size_t i = 1; i < words.size(); ++i) text += ' ' + shown(words[i]).substr(0, 40);
    return text;
}

void add_refusal(std::vector<Cell>& cells, Words const& arguments, std::string const& says) {
    cells.push_back({(arguments[0] == asc ? "asc" : "recorder") + joined(arguments),
                     [=] { return in_folder({}, {.arguments = arguments}, {.says = says, .prints = ""}); }});
}

void add_values(std::vector<Cell>& cells) {
    struct {
        char const* option;
        Words values;
    } const rows[] = {
        {"--beats",
         {"", ",", "x", "-1", "1e3", "1:2", "1:2:0", "2:1:1", "0:1:0.0005", "0.00001", "1000", "nan", "\x1b[2J", "1\n2",
          "0:999:0.001,0:999:0.001", std::string(100000, '1')}},
        {"--size", {"", "x", "1x", "x1", "0x1", "16385x1", "-1x1", "1x1x1", "1.5x1", "99999999999x1", "\x1b"}},
        {"--samples", {"", "-1", "65", "x", "1.5", "99999999999"}},
        {"--columns", {"", "0", "101", "x", "1.5", "99999999999"}},
        {"--sheet", {"", ".", "a", "a.jpg", "a.png/", ".png"}},
        {"--scene", {""}},
        {"--out", {""}},
        {"--fast", {"1"}},
    };
    for (auto const& [option, values] : rows) {
        for (std::string const& value : values) {
            add_refusal(cells, {recorder, "--beats", "1", "--out", "x", option, value}, option);
        }
    }
    for (std::string const option : {"--weld", "--refine", "--min-angle", "--centre"}) {
        for (std::string const value : {"", "x", "nan", "inf", "1e300", "-1e300", "1,2", "1,2,3,4", "1\n", "\x1b[2J"}) {
            add_refusal(cells, {asc, "convert", "square.obj", "-o", "c.asc", option, value}, option);
        }
    }
    for (std::string const option : {"--columns", "--panel"}) {
        for (std::string const value : {"", "x", "0", "-1", "99999999999", "1.5"}) {
            add_refusal(cells, {asc, "sheet", "a.asc", "-o", "c.png", option, value}, option);
        }
    }
}

void add_sizes(std::vector<Cell>& cells) {
    struct {
        Words options;
        char const* size;
    } const rows[] = {
        {{"--beats", "0:42:0.1", "--size", "320x8192", "--columns", "1"}, "328x3451564"},
        {{"--beats", "0:42:0.1", "--size", "320x8192", "--columns", "20"}, "6484x172582"},
        {{"--beats", "0:380:0.001", "--size", "320x240", "--columns", "100"}, "32404x1010804"},
        {{"--beats", "0:40:0.01", "--size", "300x1000", "--columns", "100"}, "30404x41044"},
    };
    for (auto const& [options, size] : rows) {
        Words arguments = {recorder, "--samples", "0", "--sheet", "s.png"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        add_refusal(cells, arguments, size);
    }
}

void add_drivers(std::vector<Cell>& cells) {
    Words const commands[] = {small_picture({"--beats", "1", "--out", "."}),
                              {recorder, "--list"},
                              {asc, "sheet", "a.asc", "-o", "c.png"},
                              {asc, "preview", "a.asc"}};
    for (std::string const driver : {"__EGL_VENDOR_LIBRARY_FILENAMES=/dev/null", "__EGL_VENDOR_LIBRARY_FILENAMES=none",
                                     "LIBGL_DRIVERS_PATH=/dev/null", "GALLIUM_DRIVER=zink", "GALLIUM_DRIVER=none",
                                     "MESA_GL_VERSION_OVERRIDE=3.3FC", "MESA_GL_VERSION_OVERRIDE=4.5FC"}) {
        for (Words const& arguments : commands) {
            std::string const name = (arguments[0] == asc ? "asc" : "recorder") + joined(arguments) + ", " + driver;
            cells.push_back(
                {name,
                 [=] { return in_folder({}, {.arguments = arguments, .environment = {driver}}, {.says = "OpenGL"}); }});
        }
    }
}

/// Runs a tool within a limit; whether a library gets by with it is a matter of luck. What is too little for one may
/// end it by a signal; the line is the tool's all the same.
/// @return "" if it does its work, or fails with one line; else what is wrong
std::string limited(Words const& arguments, std::string const& limit) {
    support::TempFolder const folder;
    make_file(folder.Path("square.obj"), square_obj());
    make_file(folder.Path("a.asc"), square_asc());
    Words shell = {"/bin/sh", "-c", limit + "; exec \"$@\"", "sh"};
    shell.insert(shell.end(), arguments.begin(), arguments.end());
    support::Outcome const end = support::run(shell, {.folder = folder.Path(""),
                                                      .environment = {"LIBGL_ALWAYS_SOFTWARE=1"},
                                                      .limit = std::chrono::seconds(30)}); // it draws
    int const lines = lines_of(end.error);
    bool const refused = end.status == 1 || end.status == 127 || end.signal == SIGSEGV; // 127: of the loader
    if ((end.status == 0 && lines == 0) || (refused && lines == 1)) return "";
    return "status " + std::to_string(end.status) + ", signal " + std::to_string(end.signal) + ": " + shown(end.error);
}

void add_resources(std::vector<Cell>& cells) {
    Words const commands[] = {small_picture({"--beats", "1", "--out", "."}),
                              {asc, "convert", "square.obj", "-o", "c.asc"},
                              {asc, "sheet", "a.asc", "-o", "c.png"},
                              {recorder, "--help"},
                              {asc, "check", "a.asc"}};
    for (std::string const limit : {"ulimit -n 4", "ulimit -n 6", "ulimit -n 12", "ulimit -v 60000", "ulimit -v 100000",
                                    "ulimit -v 200000", "ulimit -v 300000", "ulimit -v 400000", "ulimit -v 600000",
                                    "ulimit -s 100", "ulimit -t 1000", "ulimit -c 0"}) {
        for (Words const& arguments : commands) {
            std::string const name = (arguments[0] == asc ? "asc" : "recorder") + joined(arguments) + ", " + limit;
            cells.push_back({name, [=] { return limited(arguments, limit); }});
        }
    }
}

void add_working_folders(std::vector<Cell>& cells) {
    Words const commands[] = {{recorder, "--beats", "1", "--out", "x"},
                              {recorder, "--beats", "1", "--sheet", "x.png"},
                              {asc, "check", "a.asc"},
                              {asc, "convert", "square.obj", "-o", "c.asc"},
                              {asc, "join", "a.asc", "-o", "c.asc"}};
    for (Words const& arguments : commands) {
        cells.push_back({(arguments[0] == asc ? "asc" : "recorder") + joined(arguments) + ", the folder is gone", [=] {
                             return in_folder([](std::string const& folder) { make_folder(folder + "gone"); },
                                              {.arguments = arguments, .before = "cd gone; rmdir ../gone"},
                                              {.prints = ""});
                         }});
    }
}

} // namespace

std::vector<Cell> tool_cells() {
    std::vector<Cell> cells;
    add_values(cells);
    add_sizes(cells);
    add_drivers(cells);
    add_resources(cells);
    add_working_folders(cells);
    return cells;
}

} // namespace faults
