// SPDX-License-Identifier: MIT
// Sound that cannot be had, does not answer, or fails in mid-show: the picture comes, and the end too.

#include "tests/faults/matrix/commands.h"
#include "tests/faults/matrix/silentserver.h"
#include "tests/support/temp.h"

#include <algorithm>

namespace faults {

namespace {

std::vector<Kind> const kinds = {
    {"exact", {}, {}},
    {"friendly", {}, {"HARDSILENCE_DESKTOP=1", "HARDSILENCE_PACE=1", "HARDSILENCE_SOUND=1"}},
    {"mute", {"-mute"}, {}},
};

bool is_mute(Kind const& kind) { return !kind.options.empty(); }

/// A device, as OpenAL is told of it.
struct Device {
    char const* name;
    Words environment;
    char const* says;
};

std::vector<Device> const devices = {
    {"of a driver that finds none", {"ALSOFT_DRIVERS=oss"}, "No sound device; the show is silent."},
    {"of no driver", {"ALSOFT_DRIVERS=none"}, "No sound device; the show is silent."},
    {"of an unknown driver", {"ALSOFT_DRIVERS=\x1b[2J,\xff"}, "No sound device; the show is silent."},
    {"ALSA without settings", {"ALSOFT_DRIVERS=alsa", "ALSA_CONFIG_PATH=/dev/null"}, "No sound device"},
    {"ALSA without a file of settings", {"ALSOFT_DRIVERS=alsa", "ALSA_CONFIG_PATH=/none"}, "No sound device"},
    {"PulseAudio that is not there", {"ALSOFT_DRIVERS=pulse", "PULSE_SERVER=unix:/none"}, "No sound device"},
    {"PulseAudio at no address", {"ALSOFT_DRIVERS=pulse", "PULSE_SERVER=no.such.host"}, ""},
    {"null", {"ALSOFT_DRIVERS=null"}, ""},
};

void add_devices(std::vector<Cell>& cells) {
    for (Device const& device : devices) {
        for (Kind const& kind : kinds) {
            cells.push_back(plays(
                std::string(device.name) + ", " + kind.name,
                {.arguments = small_show(kind.options), .environment = joined(kind.environment, device.environment)},
                {.most_lines = is_mute(kind) ? 1 : 2, .says = is_mute(kind) ? "" : device.says}));
        }
    }
}

/// PulseAudio as it is once it is frozen: it takes connections, and says nothing.
void add_frozen_server(std::vector<Cell>& cells) {
    for (Kind const& kind : kinds) {
        cells.push_back(
            {std::string("PulseAudio frozen, ") + kind.name, [&kind] {
                 support::TempFolder const temp;
                 SilentServer const server(temp.Path("pulse"));
                 Words const environment =
                     joined(kind.environment, {"ALSOFT_DRIVERS=pulse", "PULSE_SERVER=unix:" + server.Path()});
                 char const* const line = "The sound device does not answer; the show is silent.";
                 return play_complaint({.arguments = small_show(kind.options), .environment = environment},
                                       {.most_lines = is_mute(kind) ? 1 : 2, .says = is_mute(kind) ? "" : line});
             }});
    }
}

/// An ALSA device whose every write fails.
void add_failing_device(std::vector<Cell>& cells) {
    constexpr char const* settings =
        "pcm.!default { type file slave.pcm \"nothing\" file \"/dev/full\" format \"raw\" }\n"
        "pcm.nothing { type null }\n";
    for (Kind const& kind : kinds) {
        cells.push_back({std::string("ALSA that cannot write, ") + kind.name, [&kind] {
                             support::TempFolder const temp;
                             Words const environment =
                                 joined(kind.environment,
                                        {"ALSOFT_DRIVERS=alsa", "ALSA_CONFIG_PATH=" + temp.Write("conf", settings)});
                             char const* const line = "The sound device fails: ";
                             // The third line: busy with its failures, it may not let go in time at the end.
                             return play_complaint({.arguments = small_show(kind.options), .environment = environment},
                                                   {.most_lines = is_mute(kind) ? 1 : 3,
                                                    .says = is_mute(kind) ? "" : line,
                                                    .time = std::chrono::milliseconds(1000)});
                         }});
    }
}

constexpr char const* calls[] = {
    "alcOpenDevice",        "alcCreateContext", "alcMakeContextCurrent", "alcDestroyContext", "alcCloseDevice",
    "alGenSources",         "alDeleteSources",  "alGenBuffers",          "alDeleteBuffers",   "alBufferData",
    "alSourceQueueBuffers", "alSourcePlay",     "alSourcePause",         "alSourceStop",      "alGetEnumValue",
};

void add_bad_calls(std::vector<Cell>& cells) {
    for (std::string const call : calls) {
        for (std::string const way : {"hangs", "fails"}) {
            for (Kind const& kind : kinds) {
                Words const environment =
                    joined(joined(kind.environment, {"ALSOFT_DRIVERS=null"}), bad_library(call, way));
                // One line where the show is silent, one where the end has to do without an answer.
                cells.push_back(plays(call + ' ' + way + ", " + kind.name,
                                      {.arguments = small_show(kind.options), .environment = environment},
                                      {.most_lines = is_mute(kind) ? 1 : 3}));
            }
        }
    }
    // Once when the device is looked for, and then at the end.
    for (Kind const& kind : kinds) {
        Words const environment = joined(joined(kind.environment, {"ALSOFT_DRIVERS=null", "BAD_FROM=1"}),
                                         bad_library("alcCloseDevice", "hangs"));
        cells.push_back(plays(std::string("alcCloseDevice hangs at the end, ") + kind.name,
                              {.arguments = small_show(kind.options), .environment = environment},
                              {.most_lines = is_mute(kind) ? 1 : 2, .says = is_mute(kind) ? "" : "did not answer"}));
    }
    // Without music nothing of the library is called.
    for (std::string const way : {"aborts", "crashes"}) {
        cells.push_back(plays("alcOpenDevice " + way + ", mute",
                              {.arguments = small_show(), .environment = bad_library("alcOpenDevice", way)}));
    }
}

} // namespace

std::vector<Cell> sound_cells() {
    std::vector<Cell> cells;
    add_devices(cells);
    add_frozen_server(cells);
    add_failing_device(cells);
    add_bad_calls(cells);
    return cells;
}

} // namespace faults
