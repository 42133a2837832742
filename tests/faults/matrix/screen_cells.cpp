// SPDX-License-Identifier: MIT
// Displays that cannot show it, and drivers that cannot draw it.

#include "tests/faults/matrix/commands.h"
#include "tests/window/xscreen.h"

#include <map>

namespace faults {

namespace {

std::vector<Kind> const kinds = {
    {"window", {"-w", "-width", "64"}, {}},
    {"full screen", {"-width", "800"}, {}},
    {"no such mode", {"-width", "640"}, {}},
    {"friendly", {}, {"HARDSILENCE_DESKTOP=1"}},
    {"friendly window", {"-w"}, {"HARDSILENCE_DESKTOP=1", "HARDSILENCE_PACE=1"}},
    {"4 samples", {"-w", "-width", "64", "-fps"}, {}},
};

Words quick_show(Kind const& kind) {
    Words arguments = {show, "-mute", "-novsync", "-limit", "20"};
    if (kind.name != std::string("4 samples")) arguments.push_back("-nofsaa");
    arguments.insert(arguments.end(), kind.options.begin(), kind.options.end());
    return arguments;
}

void add_missing_displays(std::vector<Cell>& cells) {
    for (std::string const display : {"DISPLAY", "DISPLAY=", "DISPLAY=:none", "DISPLAY=:65000",
                                      "DISPLAY=no.such.host:0", "DISPLAY=localhost:65000", "DISPLAY=\xff:\x1b[2J"}) {
        for (Kind const& kind : kinds) {
            cells.push_back(ends(shown(display) + ", " + kind.name,
                                 {.arguments = quick_show(kind), .environment = joined(kind.environment, {display})},
                                 {.says = "Cannot open the display."}));
        }
    }
}

/// An X server as it is asked for, one for each worker; they stay, for starting one takes long.
XScreen& screen_with(Words const& options, std::string const& size) {
    static std::map<std::pair<Words, std::string>, std::unique_ptr<XScreen>> screens;
    auto& screen = screens[{options, size}];
    if (!screen) screen = std::make_unique<XScreen>(options, size);
    return *screen;
}

/// A display or a driver that the show tells of.
struct Poor {
    char const* name;
    Words server; ///< options
    char const* depth;
    Words environment;
    char const* says;
};

std::vector<Poor> const poor = {
    {"without GLX", {"-extension", "GLX"}, "24", {}, "no OpenGL: its X server lacks the GLX extension."},
    {"8 bits", {}, "8", {}, "too few bits a pixel"},
    {"15 bits", {}, "15", {}, "too few bits a pixel"},
    {"no driver", {}, "24", {"LIBGL_DRIVERS_PATH=/nonexistent"}, "driver fails: it gives no context"},
    {"zink without Vulkan",
     {},
     "24",
     {"MESA_LOADER_DRIVER_OVERRIDE=zink", "VK_DRIVER_FILES=", "VK_ICD_FILENAMES="},
     "driver fails: it gives no context"},
    {"indirect, refused", {}, "24", {"LIBGL_ALWAYS_INDIRECT=1"}, "driver fails: it gives no context"},
    {"indirect", {"+iglx"}, "24", {"LIBGL_ALWAYS_INDIRECT=1"}, "driver has no display lists"},
};

void add_poor_displays(std::vector<Cell>& cells) {
    for (Poor const& display : poor) {
        for (Kind const& kind : kinds) {
            cells.push_back({std::string(display.name) + ", " + kind.name, [&display, &kind] {
                                 XScreen const& screen =
                                     screen_with(display.server, std::string("800x600x") + display.depth);
                                 Words const environment = joined(joined(kind.environment, display.environment),
                                                                  {"DISPLAY=" + screen.Name()});
                                 return end_complaint({.arguments = quick_show(kind), .environment = environment},
                                                      {.says = display.says});
                             }});
        }
    }
}

/// A driver of which one call goes wrong: in the question that is asked before the window is opened.
void add_bad_calls(std::vector<Cell>& cells) {
    for (std::string const call :
         {"glXChooseVisual", "glXCreateContext", "glXMakeCurrent", "glGetString", "glGenLists", "glIsList"}) {
        for (std::string const way : {"fails", "crashes", "aborts", "hangs"}) {
            char const* const says = way == "fails"   ? "This display"
                                     : way == "hangs" ? "does not answer."
                                                      : "it crashed.";
            auto const within = at_once + (way == "hangs" ? time_for_an_answer : std::chrono::milliseconds(0));
            cells.push_back({call + ' ' + way, [call, way, says, within] {
                                 Words const environment = joined({"DISPLAY=" + own_display()}, bad_library(call, way));
                                 return end_complaint({.arguments = small_show(), .environment = environment},
                                                      {.says = says, .within = within});
                             }});
        }
    }
}

} // namespace

std::vector<Cell> screen_cells() {
    std::vector<Cell> cells;
    add_bad_calls(cells);
    add_missing_displays(cells);
    add_poor_displays(cells);
    return cells;
}

} // namespace faults
