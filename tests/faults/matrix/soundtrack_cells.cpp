// SPDX-License-Identifier: MIT
// A soundtrack that is none: the show plays, and tells of it on standard output.

#include "tests/faults/matrix/commands.h"
#include "tests/support/temp.h"
#include "tests/support/wave.h"

#include <filesystem>
#include <random>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace faults {

namespace {

constexpr char const* file = "data/rump2.ogg";
constexpr char const* refused =
    "E: kore/music-sfml.cpp:36, LoadFromFile() Failed to open music from file data/rump2.ogg\n"
    "E: main.cpp:95, music_init() Couldn't open music from file data/rump2.ogg\n";
constexpr char const* another_rate = "E: kore/music-sfml.cpp:48, LoadFromFile() Requested frequency (48000) differs "
                                     "from audio file frequency (44100).\nE: main.cpp:95, ";

std::string soundtrack(std::size_t size) {
    return support::read_all(HARDSILENCE_SOURCE_DIR "/data/rump2.ogg").substr(0, size);
}

std::string noise() {
    std::minstd_rand generator(132);
    std::string bytes(100000, '\0');
    for (char& byte : bytes) byte = static_cast<char>(generator() >> 8U);
    return bytes;
}

/// Writes a file that claims to be as large as that.
void write_large(support::TempFolder const& folder, std::string const& head, std::uintmax_t size) {
    folder.Write(file, head);
    fs::resize_file(folder.Path(file), size);
}

using Folder = support::TempFolder const&;

struct Fault {
    char const* name;
    void (*make)(Folder folder);
    char const* prints; ///< nullptr where the library may find something to play, or not in time
};

constexpr std::uintmax_t gigabytes = 1U << 30U;

std::vector<Fault> const faults_of_it = {
    {"missing", [](Folder) {}, refused},
    {"a folder", [](Folder f) { fs::create_directory(f.Path(file)); }, refused},
    {"a FIFO", [](Folder f) { mkfifo(f.Path(file).c_str(), 0666); }, refused},
    {"a link to nothing", [](Folder f) { fs::create_symlink("none", f.Path(file)); }, refused},
    {"a link to itself", [](Folder f) { fs::create_symlink("rump2.ogg", f.Path(file)); }, refused},
    {"/dev/zero", [](Folder f) { fs::create_symlink("/dev/zero", f.Path(file)); }, refused},
    {"/dev/full", [](Folder f) { fs::create_symlink("/dev/full", f.Path(file)); }, refused},
    {"/dev/tty", [](Folder f) { fs::create_symlink("/dev/tty", f.Path(file)); }, refused},
    {"empty", [](Folder f) { f.Write(file, ""); }, refused},
    {"noise", [](Folder f) { f.Write(file, noise()); }, refused},
    {"a mesh", [](Folder f) { fs::copy_file(f.Path("data/torus2.asc"), f.Path(file)); }, refused},
    {"4 GB of noughts", [](Folder f) { write_large(f, "", 4 * gigabytes); }, refused},
    {"4 GB after a header", [](Folder f) { write_large(f, soundtrack(5000), 4 * gigabytes); }, refused},
    {"64 MiB after a header", [](Folder f) { write_large(f, soundtrack(5000), gigabytes / 16); }, nullptr},
    {"the first 40 bytes", [](Folder f) { f.Write(file, soundtrack(40)); }, refused},
    {"the first 100 bytes", [](Folder f) { f.Write(file, soundtrack(100)); }, refused},
    {"the first half", [](Folder f) { f.Write(file, soundtrack(2000000)); }, ""},
    {"65535 channels", [](Folder f) { f.Write(file, support::wave(48000, 48000, 65535)); }, refused},
    {"no channel", [](Folder f) { f.Write(file, support::wave(48000, 48000, 0)); }, refused},
    {"no rate", [](Folder f) { f.Write(file, support::wave(0, 48000)); }, refused},
    {"4294967295 Hz", [](Folder f) { f.Write(file, support::wave(0xffffffff, 48000)); }, refused},
    {"44100 Hz", [](Folder f) { f.Write(file, support::wave(44100, 441000)); }, another_rate},
    {"no sample", [](Folder f) { f.Write(file, support::wave(48000, 0)); }, ""},
};

/// A copy of the show's folder, with a soundtrack that is wrong.
void make_folder(Folder folder, Fault const& fault) {
    fs::create_directory(folder.Path("data"));
    for (auto const& entry : fs::directory_iterator(HARDSILENCE_SOURCE_DIR "/data")) {
        if (entry.path().extension() == ".asc") {
            fs::create_symlink(entry.path(), folder.Path("data/" + entry.path().filename().string()));
        }
    }
    fault.make(folder);
}

struct Sound {
    char const* name;
    std::vector<std::string> options;
    std::vector<std::string> environment;
};

std::vector<Sound> const sounds = {
    {"with a device", {}, {"ALSOFT_DRIVERS=null"}},
    {"without one", {}, {"ALSOFT_DRIVERS=none"}},
    {"mute", {"-mute"}, {"ALSOFT_DRIVERS=null"}},
};

} // namespace

std::vector<Cell> soundtrack_cells() {
    std::vector<Cell> cells;
    for (Fault const& fault : faults_of_it) {
        for (Sound const& sound : sounds) {
            cells.push_back({std::string(fault.name) + ", " + sound.name, [&fault, &sound] {
                                 support::TempFolder const folder;
                                 make_folder(folder, fault);
                                 bool const mute = !sound.options.empty();
                                 return play_complaint(
                                     {.arguments = small_show(sound.options),
                                      .environment = sound.environment,
                                      .folder = folder.Path("")},
                                     {.most_lines = 2, .prints = mute || !fault.prints ? "" : fault.prints});
                             }});
        }
    }
    return cells;
}

} // namespace faults
