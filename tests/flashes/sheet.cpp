// SPDX-License-Identifier: MIT
// Writes docs/calm.png: moments of every scene, in the full show and, to its right, in the calm one.

#include "tools/record/sheet.h"
#include "runtime/frame.h"
#include "runtime/playback.h"
#include "tests/support/withlook.h"
#include "tools/files/png.h"
#include "tools/offscreen/framebuffer.h"
#include "tools/offscreen/offscreencontext.h"
#include "tools/record/timetable.h"

#include <iostream>

namespace {

constexpr unsigned int moments = 4; // of each scene
constexpr unsigned int width = 240; // pixels
constexpr unsigned int height = 180;

struct Row {
    char const* scene;
    Millibeats at[moments];
};

// clang-format off
constexpr Row rows[] = {
    {"intro",      {200,   600,   5400,  14800}},
    {"gungirl",    {1500,  5500,  12000, 17000}},
    {"swapper",    {2000,  6500,  21500, 77000}},
    {"credits",    {2000,  5500,  10000, 16500}},
    {"tunnelgate", {500,   1500,  30500, 53500}},
    {"plasma",     {500,   1500,  10500, 30500}},
    {"fountain",   {6500,  22500, 34500, 60500}},
    {"greets",     {1500,  5500,  12500, 30000}},
};
// clang-format on

class Show {
public:
    explicit Show(bool calm) {
        support::WithLook const look({.standard_wire = true, .calm = calm});
        init_demo(demo, nullptr, beat_seconds);
        timetable = make_timetable(demo);
    }

    SheetCell Take(Row const& row, Millibeats at, char const* label, Framebuffer const& framebuffer) {
        ScenePlace const& place = *find_scene(timetable, row.scene);
        playback.SkipTo(frame_at(place.Begin() + at));
        playback.Draw();
        return {framebuffer.Read(), place.title + " " + short_beat(at) + label};
    }

private:
    kore::Demo demo{beat_seconds};
    Playback playback{demo, recorded_rate};
    Timetable timetable;
};

} // namespace

int main(int argc, char** argv) {
    OffscreenContext context;
    Framebuffer framebuffer;
    if (argc != 2 || !context.Open() || !framebuffer.Create(width, height, 4)) {
        std::cerr << "usage: calm_sheet FILE, where there is OpenGL to draw with" << std::endl;
        return 1;
    }
    init_gl();
    Show full(false);
    Show calm(true);
    std::vector<SheetCell> cells;
    for (Row const& row : rows) {
        for (Millibeats const at : row.at) {
            cells.push_back(full.Take(row, at, "", framebuffer));
            cells.push_back(calm.Take(row, at, " calm", framebuffer));
        }
    }
    std::string const error = write_png(argv[1], make_sheet(cells, 2 * moments));
    if (!error.empty()) std::cerr << "calm_sheet: " << error << std::endl;
    return error.empty() ? 0 : 1;
}
