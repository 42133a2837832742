// SPDX-License-Identifier: MIT
// Every file of data/, and every way in which it can be wrong: named before a window opens, and by the recorder.

#include "tests/faults/datafiles.h"
#include "tests/faults/matrix/toolbox.h"

#include <filesystem>

namespace fs = std::filesystem;
using support::read_all;

namespace faults {

namespace {

constexpr char const* data = HARDSILENCE_SOURCE_DIR "/data/";

/// A folder in which data/ is the show's, but for one file.
void link_data(std::string const& folder, std::string const& but) {
    fs::create_directory(folder + "data");
    for (auto const& entry : fs::directory_iterator(data)) {
        std::string const name = entry.path().filename();
        if (name != but) fs::create_symlink(entry.path(), folder + "data/" + name);
    }
}

struct Damage {
    char const* name;
    std::function<void(std::string const& path, std::string const& bytes)> act; ///< the file is not there yet
    std::string says;
    bool regular = false; ///< the file is one
};

std::vector<Damage> mesh_damages() {
    return {
        {"missing", [](std::string const&, std::string const&) {}, " is missing"},
        {"a link into nowhere", [](std::string const& p, std::string const&) { make_link_to("none", p); },
         " is missing"},
        {"empty", [](std::string const& p, std::string const&) { make_file(p, ""); }, "vertex count mismatch", true},
        {"cut", [](std::string const& p, std::string const& b) { make_file(p, b.substr(0, 100)); }, "count mismatch",
         true},
        {"another mesh", [](std::string const& p, std::string const&) { make_file(p, square_asc()); },
         " holds no object ", true},
        {"noughts", [](std::string const& p, std::string const& b) { make_file(p, std::string(b.size(), '\0')); },
         "vertex count mismatch", true},
        {"a folder", [](std::string const& p, std::string const&) { make_folder(p); }, " is not a regular file"},
        {"a FIFO", [](std::string const& p, std::string const&) { make_fifo(p); }, " is not a regular file"},
        {"a device", [](std::string const& p, std::string const&) { make_link_to("/dev/zero", p); },
         " is not a regular file"},
        {"4 GB of noughts", [](std::string const& p, std::string const&) { make_hole(p); }, " has more than 64 MiB",
         true},
    };
}

std::vector<Damage> soundtrack_damages() {
    std::string const other = " is not Ogg Vorbis";
    return {
        {"missing", [](std::string const&, std::string const&) {}, " is missing"},
        {"empty", [](std::string const& p, std::string const&) { make_file(p, ""); }, other},
        {"cut", [](std::string const& p, std::string const& b) { make_file(p, b.substr(0, 20)); }, other},
        {"a mesh", [](std::string const& p, std::string const&) { make_file(p, square_asc()); }, other},
        {"a folder", [](std::string const& p, std::string const&) { make_folder(p); }, " is not a regular file"},
        {"a FIFO", [](std::string const& p, std::string const&) { make_fifo(p); }, " is not a regular file"},
        {"a device", [](std::string const& p, std::string const&) { make_link_to("/dev/zero", p); },
         " is not a regular file"},
        {"4 GB of noughts", [](std::string const& p, std::string const&) { make_hole(p); }, " has more than 64 MiB"},
    };
}

struct Reader {
    char const* name;
    Command command;
};

/// The show looks before it asks for a display, and the recorder before it asks for OpenGL.
std::vector<Reader> readers() {
    return {
        {"show", {.arguments = {show}, .environment = {"DISPLAY", "HARDSILENCE_CHECK=1"}}},
        {"recorder", {.arguments = {recorder, "--list"}}},
    };
}

Cell damaged(Reader const& reader, std::string const& file, Damage const& damage) {
    return {std::string(reader.name) + ", " + file + " " + damage.name, [=] {
                support::TempFolder const folder;
                link_data(folder.Path(""), file);
                damage.act(folder.Path("data/" + file), read_all(data + file));
                Command command = reader.command;
                command.folder = folder.Path("");
                return end_complaint(command, {.says = "data/" + file + (damage.says[0] == ' ' ? damage.says : "")});
            }};
}

struct Nothing {
    char const* name;
    std::function<void(std::string const& folder)> act;
};

std::vector<Nothing> missing_folders() {
    return {
        {"no data", [](std::string const&) {}},
        {"data empty", [](std::string const& folder) { make_folder(folder + "data"); }},
        {"data a file", [](std::string const& folder) { make_file(folder + "data", "x"); }},
        {"data a FIFO", [](std::string const& folder) { make_fifo(folder + "data"); }},
        {"data a link to itself", [](std::string const& folder) { make_link_to("data", folder + "data"); }},
        {"data a link into nowhere", [](std::string const& folder) { make_link_to("none", folder + "data"); }},
        {"data of folders", [](std::string const& folder) { fs::create_directories(folder + "data/weknow.asc"); }},
        {"data of FIFOs",
         [](std::string const& folder) {
             make_folder(folder + "data");
             make_fifo(folder + "data/weknow.asc");
         }},
    };
}

/// The program alone, in a folder without the show's data.
Cell without_data(std::string const& binary, Nothing const& nothing, bool leave) {
    return {fs::path(binary).filename().string() + ", " + nothing.name + (leave ? ", no folder at all" : ""), [=] {
                support::TempFolder const folder;
                fs::create_directories(folder.Path("bin/deep"));
                fs::create_directory(folder.Path("there"));
                std::string const copy = folder.Path("bin/deep/program");
                fs::copy_file(binary, copy);
                nothing.act(folder.Path("there/"));
                std::vector<std::string> arguments = {copy};
                if (binary == recorder) arguments.push_back("--list");
                return end_complaint({.arguments = arguments,
                                      .before = leave ? "rm -r ../there" : "",
                                      .environment = {"DISPLAY"},
                                      .folder = folder.Path("there")},
                                     {.says = "Cannot find the show's data/weknow.asc"});
            }};
}

} // namespace

std::vector<Cell> data_cells() {
    std::vector<Cell> cells;
    for (Reader const& reader : readers()) {
        for (std::string const& file : mesh_files()) {
            for (Damage const& damage : mesh_damages()) {
                // Where the file that marks the show's folder is none, the next folder is taken.
                if (file != "weknow.asc" || damage.regular) cells.push_back(damaged(reader, file, damage));
            }
        }
    }
    for (Damage const& damage : soundtrack_damages()) {
        cells.push_back(damaged(readers()[0], "rump2.ogg", damage));
    }
    for (std::string const& binary : {show, recorder}) {
        for (Nothing const& nothing : missing_folders()) {
            cells.push_back(without_data(binary, nothing, false));
        }
        cells.push_back(without_data(binary, missing_folders()[0], true));
    }
    return cells;
}

} // namespace faults
