// SPDX-License-Identifier: MIT
// Every program that writes a file, and everything that can stand in its way: an error line, the old file as it was,
// and nothing half-made beside it.

#include "tests/faults/matrix/toolbox.h"

#include <filesystem>
#include <set>

namespace fs = std::filesystem;
using support::read_all;

namespace faults {

namespace {

/// How long a picture may take where other tests hold the processor too.
constexpr std::chrono::milliseconds drawing{30000};

struct Writer {
    char const* name;
    std::function<std::vector<std::string>(std::string const& out)> command;
    std::string ending;
};

using Words = std::vector<std::string>;

std::vector<Writer> writers() {
    return {
        {"sheet",
         [](std::string const& out) {
             return small_picture({"--beats", "1", "--sheet", out});
         },
         ".png"},
        {"convert",
         [](std::string const& out) { return Words{asc, "convert", "One=square.obj", "Two=square.obj", "-o", out}; },
         ".asc"},
        {"join", [](std::string const& out) { return Words{asc, "join", "a.asc", "b.asc", "-o", out}; }, ".asc"},
        {"asc sheet",
         [](std::string const& out) {
             return Words{asc, "sheet", "a.asc", "-o", out};
         },
         ".png"},
        {"preview",
         [](std::string const& out) {
             return Words{asc, "preview", "a.asc", "-o", out};
         },
         ".png"},
        {"view", [](std::string const& out) { return Words{asc, "preview", "a.asc", "--camera", "0,0,3", "-o", out}; },
         ".png"},
    };
}

std::vector<Deed> obstacles() {
    std::string const irregular = "not a regular file";
    return {
        {"a folder", make_folder, "Is a directory"},
        {"a FIFO", make_fifo, irregular},
        {"a socket", make_socket, irregular},
        {"a full device", [](std::string const& path) { make_link_to("/dev/full", path); }, irregular},
        {"no device", [](std::string const& path) { make_link_to("/dev/null", path); }, irregular},
        {"a link to itself", [](std::string const& path) { make_link_to(path, path); }, "Too many levels"},
        {"a link into nowhere", [](std::string const& path) { make_link_to("none/x", path); }, "No such file"},
    };
}

/// The names in a folder, and where each leads.
std::string contents(std::string const& folder) {
    std::set<std::string> names;
    for (auto const& entry : fs::directory_iterator(folder)) {
        names.insert(entry.path().filename().string() + std::to_string(int(entry.symlink_status().type())));
    }
    std::string all;
    for (std::string const& name : names) all += name + ' ';
    return all;
}

Cell obstructed(Writer const& writer, Deed const& deed) {
    std::string const out = "out" + writer.ending;
    return {std::string(writer.name) + " into " + deed.name, [=] {
                std::string before;
                return in_folder(
                    [&](std::string const& folder) {
                        deed.act(folder + out);
                        before = contents(folder);
                    },
                    {.arguments = writer.command(out)}, {.says = "cannot write "},
                    [&](std::string const& folder) { return contents(folder) == before ? "" : "leaves something"; });
            }};
}

Cell misplaced(Writer const& writer, std::string const& path, std::string const& says) {
    return {std::string(writer.name) + " to " + path.substr(0, 20),
            [=] { return in_folder({}, {.arguments = writer.command(path + writer.ending)}, {.says = says}); }};
}

/// No result fits into 512 bytes.
Cell too_large(Writer const& writer, bool there) {
    std::string const out = "out" + writer.ending;
    std::string const name = there ? " over an old file" : " anew";
    return {std::string(writer.name) + name + ", too large", [=] {
                return in_folder(
                    [&](std::string const& folder) {
                        if (there) make_file(folder + out, "old");
                    },
                    {.arguments = writer.command(out), .before = "ulimit -f 1"},
                    {.says = "File too large", .within = drawing},
                    [&](std::string const& folder) -> std::string {
                        auto const files = std::distance(fs::directory_iterator(folder), {});
                        if (files != (there ? 4 : 3)) return "leaves something";
                        return read_all(folder + out) == (there ? "old" : "") ? "" : "the old file is lost";
                    });
            }};
}

void add_stills(std::vector<Cell>& cells) {
    for (Deed const& deed : obstacles()) {
        cells.push_back({std::string("stills into ") + deed.name, [=] {
                             return in_folder([&](std::string const& folder) { deed.act(folder + "beat_001.000.png"); },
                                              {.arguments = small_picture({"--beats", "1", "--out", "."})},
                                              {.says = "cannot write ", .prints = "", .within = drawing});
                         }});
    }
    std::pair<char const*, std::function<void(std::string const&)>> const folders[] = {
        {"a file", [](std::string const& path) { make_file(path, "x"); }},
        {"a FIFO", make_fifo},
        {"a link to itself", [](std::string const& path) { make_link_to(path, path); }},
    };
    for (auto const& [what, act] : folders) {
        for (std::string const out : {"out", "out/deeper", "out/deeper/still"}) {
            cells.push_back({"the folder " + out + " is " + what, [=, act = act] {
                                 return in_folder([&](std::string const& folder) { act(folder + "out"); },
                                                  {.arguments = small_picture({"--beats", "1", "--out", out})},
                                                  {.says = "cannot make the folder", .prints = ""});
                             }});
        }
    }
}

void add_placed(std::vector<Cell>& cells) {
    for (Deed const& deed : obstacles()) {
        cells.push_back({std::string("place over ") + deed.name, [=] {
                             return in_folder(
                                 [&](std::string const& folder) {
                                     make_folder(folder + "data");
                                     deed.act(folder + "data/a.asc");
                                 },
                                 {.arguments = {place, "a.asc", "data"}}, {.says = "cannot write data/a.asc"});
                         }});
    }
}

} // namespace

std::vector<Cell> writing_cells() {
    std::vector<Cell> cells;
    for (Writer const& writer : writers()) {
        for (Deed const& deed : obstacles()) cells.push_back(obstructed(writer, deed));
        cells.push_back(misplaced(writer, "/proc/x", "cannot write "));
        cells.push_back(misplaced(writer, "a.asc/x", "Not a directory"));
        cells.push_back(misplaced(writer, std::string(300, 'x'), "File name too long"));
        for (bool const there : {false, true}) cells.push_back(too_large(writer, there));
    }
    add_stills(cells);
    add_placed(cells);
    return cells;
}

} // namespace faults
